# SPDX-License-Identifier: Apache-2.0
"""A job of one page, beside the filters of the system that do the same work or the like."""
import dataclasses
import pathlib
import subprocess

from chapters import Chapter, milliseconds, times
from jobs import ALL_ON, IMAGE_BYTES, PHOTO, job_of, our_filter, photo_environment
from meter import BUILD, ROOT, Run, in_turn, middle

SYSTEM_FILTERS = pathlib.Path("/usr/lib/cups/filter")
OURS = "RGB to 48 bits, profile, sharpening"
TO_PAGE = "JPEG of 9 megapixels to a page"
DITHERED = "RGB to four inks, dithered"
PEERS = [  # a filter, its PPD in peers.drv, its work, bytes without which it has not printed
    ("rastertopwg", "pwg", "RGB, run lengths", 2_000_000),
    ("rastertopclx", "pcl-rgb", "RGB as it is, PackBits", 2_000_000),
    ("rastertopclx", "pcl-cmyk", DITHERED, 200_000),
    ("rastertops", "ps", "RGB, deflate", 500_000),
    ("rastertopdf", "pdf", "RGB, deflate", 500_000),
    ("rastertoescpx", "escp", "RGB to four inks, dithered, bands of jets", 200_000),
]

WORDS = """
A whole job of one page, from the start of the process to its end: the same photo through raster
filters that Debian ships. What they do differs, and so do the bytes that they write; each gets the
raster that its PPD (made of `bench/speed/peers.drv`) asks for. Then what makes such a raster of a
photo. "Ours ÷ theirs" is our time divided by theirs.
"""


@dataclasses.dataclass(frozen=True)
class Peer:
    run: Run
    work: str
    ours: Run  # which does the like


def larger_photo(folder):
    """The sample photo at twice its size each way, as cameras take them."""
    path = pathlib.Path(folder) / "large.jpg"
    with open(path, "wb") as file, subprocess.Popen(["djpeg", "-scale", "16/8", PHOTO],
                                                    stdout=subprocess.PIPE) as picture:
        subprocess.run(["cjpeg", "-quality", "92"], stdin=picture.stdout, stdout=file, check=True)
    return path


def photo_filter(program, photo):
    return Run([program, "1", "anna", "Beach", "1", "PageSize=RQ_10x15 print-scaling=fill", photo],
               environment=photo_environment(BUILD / "tqr7.ppd"), least_bytes=IMAGE_BYTES // 2)


def peers_of(rasters):
    ppds = pathlib.Path(rasters.folder) / "ppds"
    subprocess.run(["ppdc", "-d", ppds, ROOT / "bench/speed/peers.drv"], check=True)
    ours = job_of(our_filter(ALL_ON), rasters.photo(1), 1)
    peers = [Peer(ours, OURS, ours)]
    for program, name, work, least in PEERS:
        ppd = ppds / f"{name}.ppd"
        run = Run([SYSTEM_FILTERS / program, "7", "anna", "Beach", "1", ""],
                  environment={"PPD": str(ppd)}, input=str(rasters.photo_for(ppd)),
                  least_bytes=least)
        peers.append(Peer(run, work, ours))
    photo = larger_photo(rasters.folder)
    ours = photo_filter(BUILD / "phototopage", photo)
    return peers + [Peer(run, TO_PAGE, ours)
                    for run in (ours, photo_filter(SYSTEM_FILTERS / "imagetoraster", photo))]


def peers(rasters, rounds):
    all_peers = peers_of(rasters)
    usages = in_turn([peer.run for peer in all_peers], rounds)
    taken = {id(peer.run): middle([used.cpu for used in of_run])
             for peer, of_run in zip(all_peers, usages)}
    rows = [[f"`{pathlib.Path(peer.run.argv[0]).name}`", peer.work,
             milliseconds(taken[id(peer.run)]), times(taken[id(peer.ours)], taken[id(peer.run)])]
            for peer in all_peers]
    dithered = next(row for row in rows if row[1] == DITHERED)
    return Chapter(
        title="Beside other filters",
        words=WORDS,
        head=["Filter", "Its work", "CPU, ms", "Ours ÷ theirs"],
        rows=rows,
        answers=[("a job of one page", rows[0][2] + " ms",
                  f"{dithered[0]}, which dithers to four inks", dithered[3]),
                 ("the page of a photo", rows[-2][2] + " ms", f"CUPS's own {rows[-1][0]}",
                  rows[-1][3])])
