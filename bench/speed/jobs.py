# SPDX-License-Identifier: Apache-2.0
"""The programs that are held against each other, and the raster streams that they get."""
import dataclasses
import pathlib
import subprocess

from meter import BUILD, Run

PAPERS = subprocess.check_output([pathlib.Path(__file__).parents[2] / "scripts/papers"], text=True)
SIZES = {row.split()[0]: tuple(map(int, row.split()[1:3])) for row in PAPERS.splitlines()}
WIDTH, HEIGHT = SIZES["RQ_10x15"]  # dots of the sheet
IMAGE_BYTES = WIDTH * HEIGHT * 6  # as they go to the printer
EMPTY_STREAM = b"3SaR"  # a raster stream without pages
NO_PAGES = 1  # the filter's status for a job without pages
PHOTO = BUILD / "sample-photo.jpg"

ALL_OFF = "PageSize=RQ_10x15 RQColorConversion=Disabled RQSharpness_Common=None"
ALL_ON = "PageSize=RQ_10x15 RQColorConversion=Enabled RQSharpness_Common=Normal"


def widening_filter(options):
    """The filter beside a conversion library that only widens bytes to samples."""
    return filter_run(BUILD / "bench/widening/rastertoprinter", options)


def our_filter(options):
    """The filter beside the conversion library that it is installed with."""
    return filter_run(BUILD / "rastertoprinter", options)


def filter_run(program, options):
    return Run([program, "7", "anna", "Beach", "1", options],
               environment={"PPD": str(BUILD / "tqr7.ppd")}, printer=True)


def floor(name, *arguments):
    """A program that does nothing but what a contract leaves no way around."""
    return Run([BUILD / "bench" / name, *arguments], environment={"PPD": str(BUILD / "tqr7.ppd")})


def job_of(run, raster, pages, times=1):
    """The program on a stream of so many pages, fed so many times."""
    empty = run.printer and pages == 0
    return dataclasses.replace(run, input=str(raster), times=times,
                               status=NO_PAGES if empty else run.status,
                               least_bytes=pages * times * IMAGE_BYTES)


class Rasters:
    """Raster streams in a folder, each made when it is first asked for."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)

    def photo(self, pages, paper="RQ_10x15"):
        """So many pages of the sample photo, as phototopage makes them for the filter."""
        command = [BUILD / "phototopage", "1", "anna", "Beach", str(pages),
                   f"PageSize={paper} print-scaling=fill", PHOTO]
        return self.made(f"{paper}-{pages}", command if pages > 0 else None, BUILD / "tqr7.ppd")

    def photo_for(self, ppd):
        """A page of the sample photo, as the system's own filter makes it for a PPD."""
        command = ["/usr/lib/cups/filter/imagetoraster", "1", "anna", "Beach", "1",
                   "print-scaling=fill", PHOTO]
        return self.made(pathlib.Path(ppd).stem, command, ppd)

    def made(self, name, command, ppd):
        path = self.folder / name
        if not path.exists():
            with open(path, "wb") as stream:
                if command is None:
                    stream.write(EMPTY_STREAM)
                else:
                    subprocess.run(command, stdout=stream, stderr=subprocess.DEVNULL, check=True,
                                   env=photo_environment(ppd))
        return path


def photo_environment(ppd):
    """What the scheduler says to a filter for photos."""
    return {"PPD": str(ppd), "CONTENT_TYPE": "image/jpeg", "LC_ALL": "C",
            "FINAL_CONTENT_TYPE": "application/vnd.cups-raster", "PATH": "/usr/bin:/bin"}
