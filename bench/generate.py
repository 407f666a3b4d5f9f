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
from config_tree import Group

FIRST_BOARD = 10000  # FRU ids: above those of the fan trays
LIMITS = {"SLOTID": 256, "LOGICAL_SLOTID": 256, "SCPLDTYPE": 8}  # what the schema has of them
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
    for element in chassis.iter("BASEADDR"):
        element.text = "0x40000000"
    return chassis


def in_proportion(records):
    """The document of that many records: the modular chassis with more boards."""
    once, twice = count(scaled(1)), count(scaled(2))
    factor = 1 + (records - once) / (twice - once)
    while count(chassis := scaled(factor)) > records:
        factor *= 0.995
    spare = example.Part()
    for i2c_id in range(records - count(chassis)):
        spare.add_i2c(1000000 + i2c_id, "PIC", f"Spare {i2c_id}", 0x50, 0, "Midplane")
    chassis.find("DEVICE[@type='i2c']").extend(spare.i2c)
    return chassis


def references(records):
    """The document of as many I2C devices as FRUs, in no order. Each FRU names two devices and a parent anywhere in the
    lists."""
    part, models = example.Part(), example.models_document()
    others = (records - count(models)) // 2 - 1  # than the chassis itself
    ids = range(FIRST_BOARD, FIRST_BOARD + others)
    for number, mirrored in zip(ids, reversed(ids)):
        shuffled = ids[number * 7919 % others]
        part.add_i2c(shuffled, "CB", f"Device {shuffled}", 0x50, 0, "Midplane")
        part.add_fru(shuffled, "CB", f"FRU {shuffled}", 0, mirrored, number, 10, I2CDEVEXTID=mirrored)
    return example.main_document({}, part.i2c, part.frus, list(models))


def simulation(tree):
    """The simulation tree with a reading for each FRU, the other way round."""
    return Group(FRUS=[Group(id=fru["id"], SIM_FRU_DATA=[Group(TEMPERATURE=30)]) for fru in reversed(tree["FRUS"])])


def write(folder, chassis, simulated=False):
    folder.mkdir(parents=True, exist_ok=True)
    note = f"{count(chassis)} records."
    (folder / "chassis_dst.xml").write_text(example.text(chassis, note), encoding="utf-8")
    tree = config_tree.convert(chassis)
    config_only.add_to_devices(tree)
    (folder / "chassis_dst.conf").write_text(config_tree.text(note, tree, {}), encoding="utf-8")
    if simulated:
        (folder / "chassis_dst_sim.conf").write_text(config_tree.text(note, simulation(tree), {}), encoding="utf-8")


if __name__ == "__main__":
    build = pathlib.Path(sys.argv[1])
    for size in 1000, 10000, 113800:
        write(build / str(size), in_proportion(size))
    write(build / "references", references(10000), simulated=True)
