# Writes the bytes of a palette file, put together independently of the program.
#
# expected_file.py ROWS COUNTxRRGGBB...: the cells, coldest first; 1 row, or 256 for HVC.

import struct
import sys


def pixels(cells, level):
    row = b"".join(bytes(max(0, min(255, value + level)) for value in cell) for cell in cells)
    return row + bytes(-len(row) % 4)


rows = int(sys.argv[1])
runs = [run.split("x") for run in sys.argv[2:]]
cells = [bytes.fromhex(colour)[::-1] for count, colour in runs for _ in range(int(count))]
file = struct.pack("<2sihhi", b"BM", 0, 0, 0, 54)
file += struct.pack("<iiihhiiiiii", 40, len(cells), rows, 1, 24, 0, 0, 2834, 2834, 0, 0)
levels = range(-128, 128) if rows == 256 else [0]
sys.stdout.buffer.write(file + b"".join(pixels(cells, level) for level in levels))
