"""A distance table from a workbook and back: distance_table.py [FILE].

Reads the sheet "km" of FILE (made in a temporary folder when none is given) into an array that is indexed by the towns,
finds the town from which all others are reached with the fewest kilometres, and writes the driving times into a second
sheet. Needs openpyxl and NumPy.
"""

import pathlib
import sys
import tempfile

import numpy
import openpyxl
import tarq
from tarq.spreadsheet import Range, write

TOWNS = ["Bremen", "Erfurt", "Kassel", "Ulm", "Trier"]
KILOMETRES = [
    [0, 373, 280, 671, 472],
    [373, 0, 145, 392, 397],
    [280, 145, 0, 402, 316],
    [671, 392, 402, 0, 362],
    [472, 397, 316, 362, 0],
]
KILOMETRES_PER_HOUR = 80


def make_workbook(path):
    book = openpyxl.Workbook()
    book.active.title = "km"
    for row in [[None, *TOWNS], *([town, *line] for town, line in zip(TOWNS, KILOMETRES))]:
        book.active.append(row)
    book.save(path)


def read_table(sheet):
    """An array of the sheet's values, indexed by the names beside and above them."""
    last = sheet.cell(sheet.max_row, sheet.max_column).coordinate
    table = tarq.TARQArray()
    table.Init(list(Range(sheet, f"A2:A{sheet.max_row}")), list(Range(sheet, f"B1:{last}").Rows.Item(1)))
    table.Value = Range(sheet, f"B2:{last}")
    return table


def driving_times(distances):
    times = tarq.TARQArray()
    times.CloneFrom(distances)
    times.Value = numpy.round(numpy.asarray(distances) / KILOMETRES_PER_HOUR, 1)
    return times


def show(table):
    towns = [table.IndexsetElement[1, number] for number in range(1, table.SizeOfIndexset[1] + 1)]
    print(" " * 8 + "".join(f"{town:>8}" for town in towns))
    for town in towns:
        print(f"{town:8}" + "".join(f"{table[town, other]:8g}" for other in towns))


def main(path):
    distances = read_table(openpyxl.load_workbook(path, data_only=True)["km"])
    print(repr(distances))
    show(distances)

    total = numpy.asarray(distances).sum(axis=1)
    best = int(total.argmin())
    print(f"best depot: {distances.IndexsetElement[1, best + 1]}, {total[best]} km to all others")

    book = openpyxl.load_workbook(path)  # once more, as a book of results alone would be saved without its formulas
    if "hours" in book:
        del book["hours"]
    write(book.create_sheet("hours"), "A1", driving_times(distances), headers=True)
    book.save(path)
    hours = read_table(openpyxl.load_workbook(path)["hours"])
    show(hours)
    print(f"from Kassel to Ulm in {hours['Kassel', 'Ulm']} hours, says {path.name}")


if __name__ == "__main__":
    if len(sys.argv) > 1:
        main(pathlib.Path(sys.argv[1]))
    else:
        with tempfile.TemporaryDirectory() as folder:
            workbook = pathlib.Path(folder) / "distances.xlsx"
            make_workbook(workbook)
            main(workbook)
