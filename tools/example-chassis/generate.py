#!/usr/bin/env python3
"""Writes the example chassis: the XML form of the modular one, a file for each kind of board, which the main document
includes; and the configuration trees of the modular and the fixed one."""

import argparse
import pathlib
import sys
from xml.etree import ElementTree

sys.dont_write_bytecode = True  # The modules are in the source tree.

import config_only
import config_tree

EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "share/libdst/examples"
XINCLUDE = "http://www.w3.org/2001/XInclude"

CHASSIS_FRU = 1
NO_I2C = -1
PICS_PER_FPC = 4
PORTS_PER_PIC = 2
FPCS = 8
PORTS_PER_ASIC = 32

# What boards of one kind carry. A board has the FRU id `first + step * slot`; its sensors and LEDs have those after it.
# temperatures: name, controller, register, red alarm. voltages: name, controller, register, millivolts. chips: the I2C
# devices behind the multiplexer of the board, the EEPROM first.
BOARDS = {
    "CB": dict(
        count=2, first=10, step=20, driver=110, segment=0x00,
        chips=[("CB", 0x51), ("MEZZ", 0x52), ("TMPSNR", 0x48), ("LED", 0x20)],
        temperatures=[("Intake", "TMP75", 0x00, 55), ("Exhaust", "TMP75", 0x01, 70), ("CPU", "CORETEMP", 0x02, 95),
                      ("Switch", "KXTEMP", 0x03, 100)],
        voltages=[("12V", "MAX207XX", 0x10, 12000), ("3.3V", "MAX207XX", 0x11, 3300),
                  ("CPU core", "MAX207XX", 0x12, 900)],
        leds=["SYSTEM", "MASTER", "HA"],
    ),
    "FPC": dict(
        count=FPCS, first=100, step=20, driver=120, segment=0x10,
        chips=[("FPC", 0x54), ("TMPSNR", 0x4C), ("VOLTSNR", 0x5C), ("LED", 0x21)],
        temperatures=[("Intake", "LM73", 0x00, 55), ("Exhaust A", "LM73", 0x01, 75), ("Exhaust B", "LM73", 0x02, 75),
                      ("Die", "DIETEMP", 0x20, 105), ("Memory", "HMCTEMP", 0x30, 95), ("PHY", "TMP435", 0x40, 100)],
        voltages=[("12V", "LTC3880", 0x88, 12000), ("Die core", "LTC3880", 0x8B, 850), ("1.2V", "LTC3880", 0x8C, 1200)],
        leds=["POWER"],
    ),
    "SIB": dict(
        count=4, first=300, step=10, driver=130, segment=0x20,
        chips=[("SIB", 0x55), ("TMPSNR", 0x4A)],
        temperatures=[("Exhaust", "TMP75", 0x00, 75), ("Fabric", "WQTEMP", 0x10, 105)],
        voltages=[("12V", "ADS7830", 0x01, 12000), ("Fabric core", "ADS7830", 0x02, 950)],
        leds=["POWER"],
    ),
    "PEM": dict(
        count=4, first=400, step=10, driver=140, segment=0x30,
        chips=[("PSUEPM", 0x58)],
        temperatures=[("Outlet", "TMPGENERIC", 0x8D, 85)],
        voltages=[], leds=[],
    ),
    "FPM": dict(
        count=2, first=500, step=20, driver=150, segment=0x40,
        chips=[("FPM", 0x57)],
        temperatures=[], voltages=[], leds=["MAJ_ALARM", "MIN_ALARM", "BEACON"],
    ),
    "FTC": dict(
        count=2, first=600, step=10, driver=160, segment=0x50,
        chips=[("FTC", 0x56)],
        temperatures=[("Controller", "TMP432", 0x00, 80)],
        voltages=[], leds=[],
    ),
}
BOARD_CTRL = {"PEM": "PSUEPM"}

# Fan trays: controller, the kind of its I2C device, address, fans. They have the FRU ids 700, 710, 720.
FAN_TRAYS = [("ADT7470", "ADT7470", 0x2C, 4), ("GFC0812", "GFC0812", 0x2E, 6), ("FANSYSPLD", "9HV0812", 0x2F, 6)]
FAN_SPEEDS = [(30, 4200), (50, 7000), (75, 10500), (100, 14000)]  # percent, revolutions a minute

FRU_MODELS = [  # FRU type, part number, assembly id, description, airflow, further elements
    ("CB", "710-100010", 0x0B10, "Control board", None, dict(POWER_RATING=250, PEAK_POWER=300)),
    ("FPC", "710-100100", 0x0B20, "32-port line card", None,
     dict(POWER_RATING=650, PEAK_POWER=720, FRUEMP="true", FRU_ENH_TEMPTHRESHOLD="true")),
    ("SIB", "710-100300", 0x0B30, "Switch fabric board", None, dict(POWER_RATING=180, PEAK_POWER=210)),
    ("FPM", "710-100500", 0x0B50, "Front panel module", None, dict(POWER_RATING=10, PEAK_POWER=10)),
    ("FTC", "710-100600", 0x0B60, "Fan tray controller", None, dict(POWER_RATING=25, PEAK_POWER=30)),
    ("PIC", "710-100900", 0x0B90, "Two-port QSFP PIC", None, dict(POWER_RATING=60, PEAK_POWER=75)),
    ("FAN", "760-100700", 0x0B70, "Fan tray, port side exhaust", "AFO", dict(NFANS=6, MIN_FAN_SPEED_PERCENT=30)),
    ("FAN", "760-100701", 0x0B71, "Fan tray, port side intake", "AFI", dict(NFANS=6, MIN_FAN_SPEED_PERCENT=35)),
    ("PEM", "740-100400", 0x0B40, "AC power supply, port side exhaust", "AFO",
     dict(PEMTYPE="AC", POWER_RATING=3000, PEAK_POWER=3200, PEM_INPSW_ACT="true")),
    ("PEM", "740-100401", 0x0B41, "DC power supply, port side intake", "AFI",
     dict(PEMTYPE="DC", POWER_RATING=2500, PEAK_POWER=2700, PEM_INPSW_ACT="false")),
]


def element(tag, attributes=None, children=(), **scalars):
    """An element with its scalars, in the order given, before its other children."""
    result = ElementTree.Element(tag, {name: str(value) for name, value in (attributes or {}).items()})
    for name, value in scalars.items():
        ElementTree.SubElement(result, name).text = str(value)
    result.extend(children)
    return result


def byte(value):
    return f"0x{value:02x}"


class Part:
    """What one file describes: I2C devices and FRUs, which go into the lists of the chassis, and devices."""

    def __init__(self):
        self.i2c = []
        self.frus = []
        self.devices = []

    def add_i2c(self, i2c_id, kind, name, address, mux_segment, location):
        self.i2c.append(element(
            "I2CDEV", {"id": i2c_id, "type": kind}, NAME=name, PARENT="System multiplexer", I2CADDR=byte(address),
            SEGMENT=byte(mux_segment), LOCATION=location,
            SYSPATH=f"/sys/bus/i2c/devices/{mux_segment + 1}-{address:04x}", DRIVERID=10, MUXADDR=byte(0x70),
            MUXADDR1=byte(0x71 + mux_segment // 16)))

    def add_fru(self, fru_id, kind, name, slot, parent, i2c_id, driver, **scalars):
        self.frus.append(element(
            "FRUDEV", {"id": fru_id, "type": kind}, NAME=name, SLOTID=slot, PARENT=parent, I2CDEVID=i2c_id,
            DRIVERID=driver, **scalars))

    def add_device(self, kind, ctrl, device_id, children=(), **scalars):
        self.devices.append(element("DEVICE", {"type": kind, "ctrl": ctrl, "id": device_id}, children, **scalars))

    def document(self):
        lists = [element("DEVICE", {"type": kind}, children) for kind, children in
                 (("i2c", self.i2c), ("FRU", self.frus)) if children]
        return element("CHASSIS", children=lists + self.devices)


def threshold(threshold_id, airflow, red):
    """Fans speed up in four steps below the red alarm; with a failed fan the alarms come earlier."""
    limits = [element("LIMIT", {"id": step}, TEMP=red - below, FANSTEPID=step)
              for step, below in enumerate((35, 25, 18, 12))]
    alarms = []
    for alarm_id, (kind, below) in enumerate(
            (("SYS_YELLOW", 8), ("SYS_RED", 0), ("BADFAN_YELLOW", 14), ("BADFAN_RED", 5))):
        alarms.append(element("ALARM", {"id": alarm_id, "type": kind}))
        alarms[-1].text = str(red - below)
    return element("THRESHOLD", {"id": threshold_id, "type": airflow}, limits + alarms,
                   NAME=f"Air {'out of' if airflow == 'AFO' else 'into'} the port side", FIRE=red + 15)


def board_part(kind):
    part = Part()
    board = BOARDS[kind]
    for slot in range(board["count"]):
        fru_id = board["first"] + board["step"] * slot
        name = f"{kind} {slot}"
        segment = board["segment"] + slot
        chip_ids = {}
        for offset, (chip, address) in enumerate(board["chips"]):
            what = "EEPROM" if offset == 0 else {"MEZZ": "mezzanine EEPROM", "TMPSNR": "temperature chip",
                                                 "VOLTSNR": "voltage chip", "LED": "LED driver"}[chip]
            part.add_i2c(fru_id + offset, chip, f"{name} {what}", address, segment, name)
            chip_ids[chip] = fru_id + offset
        extension = {"I2CDEVEXTID": chip_ids["MEZZ"]} if "MEZZ" in chip_ids else {}
        part.add_fru(fru_id, kind, name, slot, CHASSIS_FRU, fru_id, board["driver"], EPMVALID="true", EPMSIZE=512,
                     HYST_OFFSET=3, MAX_ALARM_REASONS=16, **extension)
        part.add_device(kind, BOARD_CTRL.get(kind, kind), slot, NAME=name, FRUID=fru_id, DRIVERID=board["driver"])

        mounted_id = fru_id
        for index, (what, ctrl, register, red) in enumerate(board["temperatures"]):
            mounted_id += 1
            part.add_fru(mounted_id, "TMPSNR", f"{name} {what}", slot, fru_id, chip_ids.get("TMPSNR", NO_I2C), 20,
                         TYPE="FIXED", EPMVALID="false")
            part.add_device("TMPSNR", ctrl, mounted_id, [threshold(0, "AFO", red), threshold(1, "AFI", red - 5)],
                            FRUID=mounted_id, DRIVERID=20, REG_OFFSET=byte(register), CFPGAID=byte(1), MUX=byte(0x72),
                            MUX_CHANNEL=byte(index), TMP_INDEX=byte(index), FRUTYPE=kind)
        for what, ctrl, register, millivolts in board["voltages"]:
            mounted_id += 1
            part.add_fru(mounted_id, "VOLTSNR", f"{name} {what}", slot, fru_id, chip_ids.get("VOLTSNR", NO_I2C), 30,
                         TYPE="FIXED", EPMVALID="false")
            part.add_device("VOLTSNR", ctrl, mounted_id, NAME=f"{name} {what}", FRUID=mounted_id, DRIVERID=30,
                            REG_OFFSET=byte(register), MARGIN=millivolts // 20, DEF_VOLTAGE=millivolts,
                            CONVERSION_FACTOR=1 + millivolts // 4096, MUX_ADDR=byte(0x73), MUX_SEGMENT=byte(segment),
                            CFPGAID=byte(1))
        for led in board["leds"]:
            mounted_id += 1
            part.add_fru(mounted_id, "LED", f"{name} {led} LED", slot, fru_id, chip_ids.get("LED", NO_I2C), 40,
                         TYPE="FIXED", EPMVALID="false")
            part.add_device("LED", "KORVLED", mounted_id, NAME=f"{name} {led}", LEDTYPE=led, FRUID=mounted_id,
                            DRIVERID=40)

        if kind == "FPC":
            for pic in range(PICS_PER_FPC):
                mounted_id += 1
                number = slot * PICS_PER_FPC + pic
                part.add_fru(mounted_id, "PIC", f"{name} PIC {pic}", pic, fru_id, NO_I2C, 50, LOGICAL_SLOTID=number,
                             TYPE="FIXED", EPMVALID="false")
                part.add_device("PIC", "PIC", number, NAME=f"{name} PIC {pic}", FRUID=mounted_id, DRIVERID=50,
                                PICI2CID=byte(number), CAPABILITY=3)
        if kind == "FPM" and slot == 0:
            add_front_panel(part, fru_id, mounted_id + 1)
    return part


def add_front_panel(part, board_fru, first_id):
    """The first front panel module has the display and the buttons."""
    part.add_i2c(first_id, "LCD", "Display controller", 0x3C, BOARDS["FPM"]["segment"], "FPM 0")
    part.add_fru(first_id, "LCD", "Display", 0, board_fru, first_id, 60, TYPE="FIXED", EPMVALID="false")
    part.add_device("LCD", "GENERICLCD", 0, NAME="Display", LCDTYPE="LCD_FP0", FRUID=first_id, DRIVERID=60)
    for index, button in enumerate(("POWER", "RESET")):
        fru_id = first_id + 1 + index
        part.add_fru(fru_id, "BTN", f"{button} button", index, board_fru, NO_I2C, 61, TYPE="FIXED", EPMVALID="false")
        part.add_device("BTN", "QVLBTN", index, NAME=f"{button} button", BTNTYPE=button, FRUID=fru_id, DRIVERID=61)


def fan(ctrl, index):
    """One fan with the registers that its controller has."""
    if ctrl == "FANSYSPLD":
        return element("FAN", {"id": index}, NAME=f"Fan {index}", PEL_SYSPLD_FAN_CTRL_REG=byte(0x1C + index // 2),
                       PEL_SYSPLD_FAN_CTRL_SHIFT_BITS=4 * (index % 2), PEL_SYSPLD_FAN_SPEED_REG=byte(0x20 + index))
    registers = dict(TACH_LOW_BYTE_REG=byte(0x2A + 2 * index))
    if ctrl == "ADT7470":
        registers["TACH_HIGH_BYTE_REG"] = byte(0x2B + 2 * index)
    registers["PWM_DUTY_CYCLE_REG"] = byte(0x32 + index // 2 if ctrl == "ADT7470" else 0x50 + index)
    if ctrl != "ADT7470":
        registers["FAN_SELECT_REG"] = byte(0x60 + index)
    speeds = [element("SS2RPM", SPEED=percent, RPM=rpm, TOLERANCE=20, PWMVAL=byte(255 * percent // 100))
              for percent, rpm in FAN_SPEEDS]
    return element("FAN", {"id": index}, speeds, NAME=f"Fan {index}", **registers)


def fan_part():
    part = Part()
    for slot, (ctrl, i2c_kind, address, fans) in enumerate(FAN_TRAYS):
        fru_id = 700 + 10 * slot
        name = f"Fan Tray {slot}"
        part.add_i2c(fru_id, i2c_kind, f"{name} controller", address, 0x60 + slot, name)
        part.add_fru(fru_id, "FAN", name, slot, CHASSIS_FRU, fru_id, 170, EPMVALID="true", EPMSIZE=256)
        part.add_device("FAN", ctrl, slot, [fan(ctrl, index) for index in range(fans)], NAME=name, NFANS=fans,
                        DRIVERID=170, FRUID=fru_id)
        part.add_fru(fru_id + 1, "LED", f"{name} LED", slot, fru_id, NO_I2C, 40, TYPE="FIXED", EPMVALID="false")
        part.add_device("LED", "KORVLED", fru_id + 1, NAME=f"{name} LED", LEDTYPE="ALARM", FRUID=fru_id + 1,
                        DRIVERID=40)
    return part


def chip_port(index):
    return element(
        "PORT", {"id": index + 1}, PICI2CID=byte(index // PORTS_PER_PIC), FRONTPANELPORT=index, WARPCORE=index,
        BANDWIDTHINGBPS=40, PHYADDR=128 + 4 * index, RXLANEMAP="0x3210", TXLANEMAP="0x1032", PHYTXPOLARITYFLIP=0,
        PHYRXPOLARITYFLIP=index % 2, PORTPHYID1="0x600d", LINKSCANMODE=1, OPTICSPREEMPH=20, OPTICSDRIVER=4,
        OPTICSPREDRIVER=4, DACPREEMPH=30, DACDRIVER=6, DACPREDRIVER=6)


def optics_port(index):
    pic, port = divmod(index, PORTS_PER_PIC)
    fpc, pic_on_fpc = divmod(pic, PICS_PER_FPC)
    shift = index % 4
    cpld = element(
        "SCPLD", {}, [
            element("LEDREG", OFFSET=byte(0x40 + index // 4), GREENBITMASK=byte(1 << shift),
                    AMBERBITMASK=byte(16 << shift)),
            element("LEDBLINKREG", OFFSET=byte(0x60 + index // 4), GREENBLINKBITMASK=byte(1 << shift),
                    AMBERBLINKBITMASK=byte(16 << shift)),
        ], SCPLDID=byte(fpc), SCPLDTYPE=f"SCPLD_TYPE_{fpc}", OFFSET=byte(0x10 + port), SFPREG=byte(0x20 + port))
    phy = element("PHY", PHYTYPE="INTERNAL_PHY", PHYID="0x600d", I2CID=index)
    return element("PORT", {"id": port}, [cpld, phy], PICSLOT=pic, FPPORT=index % PORTS_PER_ASIC, I2CID=index,
                   CHIPID=index // PORTS_PER_ASIC, PORTTYPE="QSFP", DRIVERID=80, CAPABILITY="0x3",
                   LOCATION=f"FPC {fpc} PIC {pic_on_fpc} port {port}")


def data_path_document():
    ports = FPCS * PICS_PER_FPC * PORTS_PER_PIC
    asics = []
    for asic in range(ports // PORTS_PER_ASIC):
        chip = element("CHIPBCM", {}, map(chip_port, range(PORTS_PER_ASIC)), MAXLANES=128, MAXUFTENTRIES=131072,
                       MAXFPSLICES=10, SYSTEMPREEMPH=16, SYSTEMDRIVER=4, SYSTEMPREDRIVER=4, LEDPROGRAM=0,
                       LEDPROGRAMLEN=0)
        asics.append(element("ASIC", {"id": asic}, [chip], NAME=f"Switch {asic}", VENDOR="Example", CHIPID="0x5685",
                             CHIPTYPE="5685", LOCATION=f"SIB {2 * asic}",
                             BASEADDR=f"0x{0x40000000 + 0x1000000 * asic:x}", DRIVERID=90))
    return element("CHASSIS", children=[
        element("DEVICE", {"type": "asic"}, asics),
        element("DEVICE", {"type": "optics"}, map(optics_port, range(ports))),
    ])


def models_document():
    models = []
    for model_id, (kind, part_number, assembly, description, airflow, further) in enumerate(FRU_MODELS):
        air = {"AIRFLOWTYPE": airflow} if airflow else {}
        models.append(element("MODEL", {"id": model_id, "type": kind}, PARTNO=part_number,
                              ASSEMBLYID=f"0x{assembly:04x}", NAME=f"EX-{kind}-{model_id}", DESC=description, **air,
                              FRUDESC=description, DRIVERID=100 + model_id, **further))
    chassis = element("MODEL", {"id": 0, "type": "CHASSIS"}, PARTNO="750-100001", ASSEMBLYID="0x0b01", NAME="EX-8000",
                      DESC="Modular chassis with eight FPC slots", AIRFLOWTYPE="AFO", FRUDESC="Chassis",
                      POWER_RATING=9000, PEAK_POWER=10000)
    return element("CHASSIS", children=[element("FRUMODEL", children=models), chassis])


def include(file, children_of):
    return element(f"{{{XINCLUDE}}}include", {"href": file, "xpointer": f"xpointer(/CHASSIS{children_of})"})


def main_document(parts, i2c, frus, others):
    """The lists of the chassis start with the chassis itself; what is given follows."""
    devices = [device for part in parts.values() for device in part.devices]

    def count(kind):
        return sum(device.get("type") == kind for device in devices)

    chassis = Part()
    chassis.add_i2c(CHASSIS_FRU, "CB", "Chassis EEPROM", 0x50, 0, "Midplane")
    chassis.add_fru(CHASSIS_FRU, "CHASSIS", "Chassis", 0, "NULL", CHASSIS_FRU, 101, TYPE="FIXED", EPMVALID="true",
                    EPMSIZE=256, MAX_ALARM_REASONS=32)
    return element(
        "CHASSIS", {},
        [element("DEVICE", {"type": "i2c"}, chassis.i2c + i2c), element("DEVICE", {"type": "FRU"}, chassis.frus + frus)]
        + others,
        VERSION=2, FAMILY="KORV_GEN2", NDRAMSLOTS=4, NFANSLOTS=count("FAN"), NFPCSLOTS=count("FPC"),
        NSIBSLOTS=count("SIB"), NFPMSLOTS=count("FPM"), NFTCSLOTS=count("FTC"), NCBSLOTS=count("CB"),
        NPEMSLOTS=count("PEM"), NPICSLOTS=count("PIC"), NFPGAS=1 + FPCS, NTMPSENSORS=count("TMPSNR"),
        NVOLTSENSORS=count("VOLTSNR"), NFPLEDS=count("LED"), NBPLEDS=0, NBUTTONS=count("BTN"), FEATURE=7, PCIBUSADDR=3,
        PCISUBADDR1=28, PCISUBADDR2=0, PCIBUSADDR_MEZZ=4, PCISUBADDR1_MEZZ=29, PCISUBADDR2_MEZZ=1, LSPCI_OVERRIDE=0)


def including_document(parts):
    """Whatever a part has that is not in the two lists is included, so that mistakes in it are not passed over."""
    return main_document(
        parts,
        [include(file, "/DEVICE[@type='i2c']/*") for file in parts],
        [include(file, "/DEVICE[@type='FRU']/*") for file in parts],
        [include(file, "/*[not(self::DEVICE[@type='i2c' or @type='FRU'])]") for file in parts]
        + [include(file, "/*") for file in ("data_path.xml", "models.xml")])


def whole_document(parts):
    """What the including document amounts to, without ASICs and optics, with a comment before the devices of a part."""
    devices = []
    for file, part in parts.items():
        devices += [ElementTree.Comment(f"What comes with {file[:-4].upper()}s."), *part.devices]
    return main_document(
        parts, [device for part in parts.values() for device in part.i2c],
        [fru for part in parts.values() for fru in part.frus], devices + list(models_document()))


def text(document, note):
    ElementTree.register_namespace("xi", XINCLUDE)
    ElementTree.indent(document)
    return "\n".join([
        '<?xml version="1.0" encoding="UTF-8"?>',
        f"<!-- {note} -->",
        "<!-- Written by tools/example-chassis/generate.py. -->",
        ElementTree.tostring(document, encoding="unicode"),
        ""])


def configuration_files(chassis, note, add, **simulated):
    """The configuration tree of a CHASSIS element and the simulation tree."""
    tree = config_tree.convert(chassis)
    add(tree)
    return {
        "chassis_dst.conf": config_tree.text(note, tree, config_tree.NOTES),
        "chassis_dst_sim.conf": config_tree.text(
            """Simulated readings, for a laboratory without the hardware: installed beside chassis_dst.conf, they
            replace the readings that it has for the FRUs of these ids. Degrees Celsius, millivolts, milliamperes; fan
            speed settings in percent.""",
            config_only.simulation(tree, **simulated), {}),
    }


def modular_files():
    parts = {f"{kind.lower()}.xml": board_part(kind) for kind in BOARDS}
    parts["fan.xml"] = fan_part()
    result = configuration_files(
        whole_document(parts),
        """The modular chassis of chassis_dst.xml as a configuration tree. It cannot describe the display, the ASICs,
        the optics and the sensors of the power supplies, which NTMPSENSORS counts all the same. Degrees Celsius,
        millivolts, watts; fan speed settings in percent.""",
        config_only.add_modular, board=100, absent=(430, 720), fan_percent=50, output_current=160000)
    result["chassis_dst.xml"] = text(
        including_document(parts),
        "A modular chassis. Degrees Celsius, millivolts, watts; fan speed settings in percent.")
    for file, part in parts.items():
        result[file] = text(part.document(), f"Included by chassis_dst.xml: what comes with {file[:-4].upper()}s.")
    result["data_path.xml"] = text(data_path_document(), "Included by chassis_dst.xml: ASICs and optics.")
    result["models.xml"] = text(models_document(), "Included by chassis_dst.xml: FRU models and the chassis model.")
    return result


def fixed_files():
    """The XML form is written by hand."""
    parser = ElementTree.XMLParser(target=ElementTree.TreeBuilder(insert_comments=True))
    return configuration_files(
        ElementTree.parse(EXAMPLES / "fixed-1u/chassis_dst.xml", parser).getroot(),
        """The fixed chassis of chassis_dst.xml as a configuration tree. It cannot describe the display, the ASIC and
        the optics.""",
        config_only.add_fixed_1u, board=1, absent=(21,), fan_percent=70, output_current=18000)


# Of each example: the files that are written, and those that nothing else may have put there.
WRITTEN = {"modular": (modular_files, ("*.xml", "*.conf")), "fixed-1u": (fixed_files, ("*.conf",))}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true", help="write nothing; fail if a file is out of date")
    check = parser.parse_args().check

    up_to_date = True
    for example, (files, patterns) in WRITTEN.items():
        directory = EXAMPLES / example
        generated = files()
        if not check:
            directory.mkdir(parents=True, exist_ok=True)
            for file, content in generated.items():
                (directory / file).write_text(content, encoding="utf-8")
            continue
        present = {path.name: path.read_text(encoding="utf-8")
                   for pattern in patterns for path in directory.glob(pattern)}
        for file in sorted(generated.keys() | present.keys()):
            if generated.get(file) != present.get(file):
                print(f"{example}/{file} is not what {pathlib.Path(__file__).name} writes", file=sys.stderr)
                up_to_date = False
    return 0 if up_to_date else 1


if __name__ == "__main__":
    sys.exit(main())
