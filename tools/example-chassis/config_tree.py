"""The configuration-tree form of a description: what becomes of the XML form, and the text of a tree.

A tree is made of Python values: Group, list of Group, tuple of integers (an array), int, Hex, float, str.
"""

import textwrap
from xml.etree import ElementTree

WIDTH = 120

# Texts and numbers with a base prefix, by element; all other elements are decimal numbers.
TEXTS = set("""
    FAMILY NAME PARENT LOCATION SYSPATH TYPE EPMVALID PARTNO DESC FRUDESC AIRFLOWTYPE PEMTYPE PEM_INPSW_ACT FRUEMP
    FRU_ENH_TEMPTHRESHOLD LEDTYPE BTNTYPE""".split())
PREFIXED = set("""
    I2CADDR SEGMENT REGOFFSET MUXADDR MUXADDR1 MUXADDR2 ASSEMBLYID TACH_LOW_BYTE_REG TACH_HIGH_BYTE_REG
    PWM_DUTY_CYCLE_REG FAN_SELECT_REG PEL_SYSPLD_FAN_CTRL_REG PEL_SYSPLD_FAN_CTRL_SHIFT_BITS PEL_SYSPLD_FAN_SPEED_REG
    PWMVAL REG_OFFSET CFPGAID MUX_ADDR MUX_SEGMENT PICI2CID""".split())
FLOATS = {"CONVERSION_FACTOR"}
RENAMED = {"TYPE": "REMOVABLE_TYPE", "type": "Type"}
WITHOUT_KEY = {"NBUTTONS", "VIRTUAL_FRU_STAT_FILE"}
AIR_FLOWS = ("NONE", "AFO", "AFI", "UNKNOWN")  # by number
# What is read of a device, by kind and controller: the form cannot describe other controllers and kinds.
BOARD = "NAME FRUID DRIVERID"
FAN_TRAY = f"{BOARD} FAN"
SENSOR = "FRUID DRIVERID THRESHOLD"
VOLTAGE = f"{BOARD} MARGIN DEF_VOLTAGE"
DEVICE_ELEMENTS = {
    "FAN": dict.fromkeys(("ADT7470", "FANSYSPLD", "GFC0812", "9HV0812"), FAN_TRAY),
    "PEM": {"PSUEPM": BOARD},
    "TMPSNR": dict.fromkeys(("TMP435", "CORETEMP", "LM73", "DIETEMP"), SENSOR)
    | dict.fromkeys(("HMCTEMP", "KXTEMP", "WQTEMP"), f"{SENSOR} REG_OFFSET")
    | dict.fromkeys(("TMP432", "TMP75"), f"{SENSOR} REG_OFFSET CFPGAID"),
    "VOLTSNR": {
        "LTC3880": f"{VOLTAGE} REG_OFFSET",
        "ADS7830": f"{VOLTAGE} REG_OFFSET CONVERSION_FACTOR CFPGAID",
        "MAX207XX": f"{VOLTAGE} CONVERSION_FACTOR MUX_ADDR MUX_SEGMENT CFPGAID",
    },
    "LED": dict.fromkeys(("KORVLED", "DURNLED", "GENERICLED", "ZMBLED", "CB"), f"{BOARD} LEDTYPE"),
    "BTN": {"QVLBTN": f"{BOARD} BTNTYPE"},
    "PIC": {"PIC": f"{BOARD} CAPABILITY PICI2CID"},
} | {board: {board: BOARD} for board in ("FPC", "SIB", "FPM", "FTC", "CB")}

NOTES = {
    "PLATFORM_NAME": "The XML form has no elements for these.",
    "BUS": "I2C devices.",
    "FRUS": """FRUs. PARENT is a text: the id of a FRU, or "NULL" at the top. SIM_ASSEMBLY_DATA is a simulated EEPROM
        with the assembly id and the part number. SIM_FRU_DATA counts where chassis_dst_sim.conf has none for the FRU.
        """,
    "DEVICES": """Devices. An unknown Type or ctrl can hide the devices after it. The Type of a THRESHOLD is a number: 1
        is AFO, 2 is AFI.""",
    "FRUMODEL": "FRU models.",
    "CHSMODEL": "Chassis models.",
    "RESILMODEL": "Errors that boards report, by FRU model.",
}


class Hex(int):
    """A number that is written in hexadecimal."""


class Group(dict):
    comment = ""


# From the XML form


def number(element, value):
    if element in FLOATS:
        return float(int(value))
    if element in PREFIXED and value.startswith("0x"):
        return Hex(value, 16)
    return int(value, 0 if element in PREFIXED else 10)


def scalar(element, value):
    return value if element in TEXTS else number(element, value)


def elements(parent):
    return [child for child in parent if child.tag is not ElementTree.Comment]


def record(element, read=None):
    """The group of an element; `read` limits its children."""
    group = Group()
    for name, value in element.items():
        if name == "id":
            group["id"] = int(value)
        elif element.tag == "THRESHOLD":
            group["Type"] = AIR_FLOWS.index(value)
        else:
            group[RENAMED.get(name, name)] = value
    if element.tag == "ALARM":
        group["LIMIT"] = int(element.text)
    for child in elements(element):
        if child.tag in WITHOUT_KEY or (read and child.tag not in read):
            continue
        if len(child) or child.attrib:
            group.setdefault(child.tag, []).append(record(child))
        else:
            group[RENAMED.get(child.tag, child.tag)] = scalar(child.tag, child.text)
    return group


def convert(chassis):
    """The tree of a CHASSIS element. A comment before a device stays."""
    root = Group()
    lists = {name: [] for name in ("i2c", "FRU", "devices", "FRUMODEL", "CHSMODEL")}
    comment = ""
    for child in chassis:
        if child.tag is ElementTree.Comment:
            comment = child.text.strip()
            continue
        kind = child.get("type")
        if child.tag == "DEVICE" and kind in lists:
            lists[kind] += map(record, elements(child))
        elif child.tag == "DEVICE" and child.get("ctrl") in DEVICE_ELEMENTS.get(kind, ()):
            device = record(child, DEVICE_ELEMENTS[kind][child.get("ctrl")].split())
            device.comment = comment
            lists["devices"].append(device)
        elif child.tag == "FRUMODEL":
            lists["FRUMODEL"] += map(record, elements(child))
        elif child.tag == "MODEL":
            lists["CHSMODEL"].append(record(child))
        elif child.tag != "DEVICE" and child.tag not in WITHOUT_KEY:
            root[child.tag] = scalar(child.tag, child.text)
        comment = ""
    root.update(
        BUS=Group(I2CDEV=lists["i2c"]), FRUS=lists["FRU"], DEVICES=lists["devices"],
        FRUMODEL=Group(MODEL=lists["FRUMODEL"]), CHSMODEL=Group(MODEL=lists["CHSMODEL"]))
    return root


# To text


def inline(value):
    if isinstance(value, Group):
        return f"{{ {' '.join(assignment(*item) for item in value.items())} }}"
    if isinstance(value, list):
        return f"( {', '.join(map(inline, value))} )"
    if isinstance(value, tuple):
        return f"[ {', '.join(map(inline, value))} ]"
    if isinstance(value, str):
        return '"' + value.replace("\\", "\\\\").replace('"', '\\"') + '"'
    if isinstance(value, Hex):
        return f"0x{value:02x}" if value <= 0xFF else f"0x{value:04x}"
    return str(value)


def assignment(key, value):
    return f"{key} = {inline(value)};"


def fits(text, indent):
    return indent + len(text) <= WIDTH - len(" },")


def filled(pieces, indent):
    lines = []
    for piece in pieces:
        if lines and fits(f"{lines[-1]} {piece}", 0):
            lines[-1] += f" {piece}"
        else:
            lines.append(" " * indent + piece)
    return lines


def comment_lines(comment, indent):
    start = " " * indent + "# "
    return textwrap.wrap(" ".join(comment.split()), WIDTH, initial_indent=start, subsequent_indent=start)


def is_nested(value):
    return isinstance(value, (Group, list))


def group_lines(group, indent):
    """A group of a list: on one line if it fits, else its plain values in lines before its lists."""
    pad = " " * indent
    comment = comment_lines(group.comment, indent)
    if fits(inline(group), indent):
        return comment + [pad + inline(group)]
    lines = filled([assignment(*item) for item in group.items() if not is_nested(item[1])], indent + 2)
    for key, value in group.items():
        if is_nested(value):
            lines += assignment_lines(key, value, indent + 2)
    lines[0] = f"{pad}{{ {lines[0].lstrip()}"
    lines[-1] += " }"
    return comment + lines


def assignment_lines(key, value, indent):
    pad = " " * indent
    if not is_nested(value) or not value or (fits(assignment(key, value), indent) and indent > 2):
        return [pad + assignment(key, value)]
    if isinstance(value, Group):
        inner = [line for item in value.items() for line in assignment_lines(*item, indent + 2)]
        return [f"{pad}{key} = {{", *inner, f"{pad}}};"]
    inner = []
    for group in value:
        inner += group_lines(group, indent + 2)
        inner[-1] += ","
    inner[-1] = inner[-1].removesuffix(",")
    return [f"{pad}{key} = (", *inner, f"{pad});"]


def text(note, tree, notes):
    """The file: the plain values of the tree before its lists; `notes` are the comments of its keys."""
    lines = [*comment_lines(note, 0), "# Written by tools/example-chassis/generate.py.", "", "CHASSIS = {"]
    for key, value in sorted(tree.items(), key=lambda item: is_nested(item[1])):
        if key in notes:
            lines += ["", *comment_lines(notes[key], 2)]
        lines += assignment_lines(key, value, 2)
    return "\n".join(lines + ["};", ""])
