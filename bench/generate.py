#!/usr/bin/env python3
"""Writes chassis of many records below the folder that is given. Records are the entries of the model's lists: what they
hold (fans, thresholds, ports) is not counted.
"""

import pathlib
import re
import sys

sys.dont_write_bytecode = True  # The modules are in the source tree.
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tools/example-chassis"))

import config_only
import config_tree
import generate as example

FIRST_BOARD = 10000  # FRU ids: above those of the fan trays
LIMITS = {"LOGICAL_SLOTID": 256, "SCPLDTYPE": 8}  # what the schema has of them
RECORDS = "DEVICE/I2CDEV", "DEVICE/FRUDEV", "DEVICE[@ctrl]", "DEVICE/ASIC", "DEVICE/PORT", "FRUMODEL/MODEL", "MODEL"

BOARDS, FAN_TRAYS = example.BOARDS, example.FAN_TRAYS


def count(chassis):
    return sum(len(chassis.findall(path)) for path in RECORDS)


def scaled(factor):
    """The document of a chassis with that many times the boards."""
    example.BOARDS = {}
    first = FIRST_BOARD
    for kind, board in BOARDS.items():
        boards = max(1, round(board["count"] * factor))
        example.BOARDS[kind] = board | dict(first=first, count=boards)
        first += boards * board["step"]
    example.FAN_TRAYS = [FAN_TRAYS[tray % 3] for tray in range(max(1, round(len(FAN_TRAYS) * factor)))]
    example.FPCS = example.BOARDS["FPC"]["count"]
    example.byte = lambda value: f"0x{value & 0xFF:02x}"  # what repeats is no id

    parts = {kind: example.board_part(kind) for kind in BOARDS}
    parts["FAN"] = example.fan_part()
    chassis = example.whole_document(parts)
    chassis.extend(example.data_path_document())
    for tag, limit in LIMITS.items():
        for element in chassis.iter(tag):
            element.text = re.sub("[0-9]+$", lambda number: str(int(number[0]) % limit), element.text)
    return chassis


def in_proportion(records):
    """The document of that many records: the modular chassis with more boards."""
    factor = records / count(scaled(1))
    while count(chassis := scaled(factor)) > records:
        factor *= 0.99
    spare = example.Part()
    for i2c_id in range(records - count(chassis)):
        spare.add_i2c(1000000 + i2c_id, "PIC", f"Spare {i2c_id}", 0x50, 0, "Midplane")
    chassis.find("DEVICE[@type='i2c']").extend(spare.i2c)
    return chassis


def references(records):
    """The document of I2C devices and FRUs alone, half and half, whose ids lie far apart in the lists."""
    part, half = example.Part(), records // 2
    for number in range(half):
        part.add_i2c(number, "CB", f"Device {number}", 0x50, 0, "Midplane")
        part.add_fru(number, "CB", f"FRU {number}", 0, number * 7919 % half, number * 7907 % half, 10)
    return part.document()


def write(folder, records, chassis, with_config):
    folder.mkdir(parents=True, exist_ok=True)
    note = f"{records} records."
    (folder / "chassis_dst.xml").write_text(example.text(chassis, note), encoding="utf-8")
    if with_config:
        tree = config_tree.convert(chassis)
        config_only.add_to_devices(tree)
        (folder / "chassis_dst.conf").write_text(config_tree.text(note, tree, {}), encoding="utf-8")


if __name__ == "__main__":
    build = pathlib.Path(sys.argv[1])
    write(build / "1000", 1000, in_proportion(1000), True)
    write(build / "10000", 10000, in_proportion(10000), True)
    write(build / "references", 10000, references(10000), False)
