# SPDX-License-Identifier: Apache-2.0
"""What a stage of bench/run leaves: a chapter of docs/performance.md, and answers for its top."""
import dataclasses


@dataclasses.dataclass(frozen=True)
class Chapter:
    """A title, what was measured and how, a table, and answers for the top of the page."""
    title: str
    words: str
    head: list
    rows: list
    answers: list  # (what, its figure, beside what, the ratio)

    def text(self):
        return f"## {self.title}\n\n{self.words.strip()}\n\n{table(self.head, self.rows)}"


def table(head, rows):
    """Markdown; the first column is set left, the others right."""
    lines = [head, ["---"] + ["---:"] * (len(head) - 1), *rows]
    return "".join(f"| {' | '.join(str(cell) for cell in line)} |\n" for line in lines)


def milliseconds(seconds):
    return f"{seconds * 1e3:.2f}"


def megabytes(amount):
    return f"{amount:.1f}"


def times(value, floor):
    """How many times the floor a value is."""
    return f"{value / floor:.2f}"
