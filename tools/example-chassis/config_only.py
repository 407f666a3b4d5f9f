"""What only the configuration-tree form says of the example chassis, and their simulation trees.

Degrees Celsius, millivolts, milliamperes, watts; fan speed settings in percent.
"""

from config_tree import AIR_FLOWS, Hex, Group

AFO = AIR_FLOWS.index("AFO")
PEM_FAN_SPEEDS = [(40, 8000), (70, 14000), (100, 20000)]  # percent, revolutions a minute

# FRU type; its modules: name, key; their errors: register, channel, threshold, limit, persistence, description.
RESILIENCY = [
    ("CB", [
        ("CPU", 0x0101, [(0x10, 0, 10, 100, 1, "Memory error, corrected"), (0x14, 0, 1, 1, 1, "Memory error, fatal")]),
        ("FPGA", 0x0102, [(0x20, 0, 1, 5, 0, "Configuration memory upset")]),
    ]),
    ("FPC", [
        ("Fabric links", 0x0201, [(0x40, link, 5, 50, 2, f"Link {link}: checksum error") for link in range(4)]),
        ("Packet memory", 0x0202, [(0x60, 0, 10, 100, 1, "Parity error, corrected"),
                                   (0x64, 0, 1, 1, 1, "Parity error, fatal")]),
    ]),
]

# Ambient temperature; power and second power figure of the FPC, watts; bandwidth in Gbit/s.
FPC_AMBIENT = [(25, 600, 540, 320), (35, 650, 590, 320), (45, 690, 640, 240), (55, 720, 680, 160)]


def groups(keys, rows):
    return [Group(zip(keys.split(), row)) for row in rows]


def of_type(records, *types):
    return [record for record in records if record["Type"] in types]


def with_id(records, identifier):
    return next(record for record in records if record["id"] == identifier)


def mounted(tree, kind, fru_id):
    """The devices of a kind that sit on children of a FRU."""
    children = {fru["id"] for fru in tree["FRUS"] if fru["PARENT"] == str(fru_id)}
    return [device for device in of_type(tree["DEVICES"], kind) if device["FRUID"] in children]


def add_intake_speeds(rows):
    """Air that comes in at the port side is warmer where it leaves: the fans run faster."""
    for row in rows:
        row["AFISPEED"] = min(row["SPEED"] + 5, 100)
        row["AFIPWMVAL"] = Hex(255 * row["AFISPEED"] // 100)
    return rows


def add_to_devices(tree):
    for tray in of_type(tree["DEVICES"], "FAN"):
        for fan in tray["FAN"]:
            if tray["ctrl"] == "ADT7470":
                fan["SPEED_REG"] = Hex(0x3A + fan["id"])
            add_intake_speeds(fan.get("SS2RPM", []))
    for supply in of_type(tree["DEVICES"], "PEM"):
        supply["SS2RPM"] = add_intake_speeds(groups("SPEED RPM TOLERANCE PWMVAL", (
            (percent, rpm, 20, Hex(255 * percent // 100)) for percent, rpm in PEM_FAN_SPEEDS)))
    for board in of_type(tree["DEVICES"], "CB"):
        board["NTSENSORS"] = len(mounted(tree, "TMPSNR", board["FRUID"]))
        board["NVSENSORS"] = len(mounted(tree, "VOLTSNR", board["FRUID"]))


def add_bus_paths(tree, smbus):
    """How units that can be pulled out are reached and detected. The segment numbers the channels of a multiplexer."""
    removable = {fru["I2CDEVID"] for fru in of_type(tree["FRUS"], "FAN", "PEM")}
    for index, device in enumerate(chip for chip in tree["BUS"]["I2CDEV"] if chip["id"] in removable):
        muxes = tuple(device[key] for key in ("MUXADDR", "MUXADDR1") if key in device)
        channels = (device["SEGMENT"] // 16, device["SEGMENT"] % 16)[-len(muxes):]
        device.update(
            SMBUS=smbus, MC_MUXADDR=muxes, MC_CHANNEL=channels, PRESENCE_SMBUS=smbus, PRESENCE_CPLD_ADDR=Hex(0x65),
            PRESENCE_OFFSET=Hex(0x10 + index), PRESENCE_MUXADDR=muxes[:1], PRESENCE_CHANNEL=(7,))


def add_assembly_data(tree, *fru_ids):
    """Simulated EEPROMs: the assembly id and the part number of the first model of the FRU's kind."""
    for fru_id in fru_ids:
        fru = with_id(tree["FRUS"], fru_id)
        model = of_type(tree["FRUMODEL"]["MODEL"], fru["Type"])[0]
        contents = model["ASSEMBLYID"].to_bytes(2, "big") + model["PARTNO"].encode("ascii")
        fru["SIM_ASSEMBLY_DATA"] = tuple(map(Hex, contents))


def resiliency(tree):
    result = []
    for kind, modules in RESILIENCY:
        fru = Group(ASSEMBLYID=of_type(tree["FRUMODEL"]["MODEL"], kind)[0]["ASSEMBLYID"], Type=kind,
                    NMODULES=len(modules), MODULE=[])
        for name, key, errors in modules:
            errors = groups("OFFSET CHANNEL THRESHOLD LIMIT PERSIST DESC",
                            ((Hex(register), *rest) for register, *rest in errors))
            fru["MODULE"].append(Group(MNAME=name, KEY=Hex(key), NERRORS=len(errors), ERRORS=errors))
        result.append(fru)
    return result


def add_modular(tree):
    tree.update(
        PLATFORM_NAME="ex8000", NTIBSLOTS=2, ENHANCEDEMTHRESHOLD=1, SUPPORTPSUFANCTL=1, PSM_FANFLT_DFLT_DEBOUNCE_CNT=3,
        RESILIENCY=1, SIBINITSPMB=1, RESILMODEL=resiliency(tree))
    add_bus_paths(tree, smbus=1)
    add_to_devices(tree)
    # The FRUs are those of the XML form, so a TIB is part of its CB.
    for board in of_type(tree["DEVICES"], "CB"):
        tree["DEVICES"].append(Group(Type="TIB", ctrl="TIB", id=board["id"], NAME=f"TIB {board['id']}",
                                     FRUID=board["FRUID"], DRIVERID=180))
    of_type(tree["DEVICES"], "TIB")[0].comment = "Each CB has a TIB. Only this form can describe it."
    models = tree["FRUMODEL"]["MODEL"]
    of_type(models, "FPC")[0]["AMBIENT_TEMP_DATA"] = groups(
        "AMBIENT_TEMPERATURE AMBIENT_FRU_POWER AMBIENT_FRU_MIC_POWER AMBIENT_FRU_BANDWIDTH", FPC_AMBIENT)
    for model in of_type(models, "PEM"):
        model["NFEEDS"] = 1 if model["PEMTYPE"] == "AC" else 2
    add_assembly_data(tree, 10, 100, 400)
    with_id(tree["FRUS"], 10)["SIM_FRU_DATA"] = [Group(FRU_PRESENCE="true", TEMPERATURE=38)]
    with_id(tree["FRUS"], 700)["SIM_FRU_DATA"] = [fan_readings(tree, 700, 100)]


def add_fixed_1u(tree):
    tree.update(PLATFORM_NAME="ex1-8q", ENHANCEDEMTHRESHOLD=1, SUPPORTPSUFANCTL=1, PSM_FANFLT_DFLT_DEBOUNCE_CNT=5)
    add_bus_paths(tree, smbus=0)
    add_to_devices(tree)
    for model in of_type(tree["FRUMODEL"]["MODEL"], "PEM"):
        model["NFEEDS"] = 1
    for model in tree["CHSMODEL"]["MODEL"]:
        model["AMBIENT_TEMP_DATA"] = groups("AMBIENT_TEMPERATURE AMBIENT_FRU_POWER", ((25, 320), (35, 350), (45, 420)))
    add_assembly_data(tree, 10, 20)
    with_id(tree["FRUS"], 2)["SIM_FRU_DATA"] = [Group(FRU_PRESENCE="true", TEMPERATURE=33)]
    with_id(tree["FRUS"], 10)["SIM_FRU_DATA"] = [fan_readings(tree, 10, 100)]


# Simulated readings


def fan_readings(tree, fru_id, percent):
    tray = next(device for device in of_type(tree["DEVICES"], "FAN") if device["FRUID"] == fru_id)
    rows = [Group((f"SIM_{key}", row[key]) for key in ("SPEED", "RPM", "TOLERANCE", "PWMVAL"))
            for row in tray["FAN"][0]["SS2RPM"]]
    rpm = next(row["SIM_RPM"] for row in rows if row["SIM_SPEED"] == percent)
    return Group(FRU_PRESENCE="true", TEMPERATURE=30, FAN_SPEED_RPM=rpm, FAN_SPEED_PERCENTAGE=percent, FAN_AF_TYPE=AFO,
                 SIM_SS2RPM=rows)


def supply_readings(output_current):
    percent, rpm = PEM_FAN_SPEEDS[0]
    return Group(FRU_PRESENCE="true", TEMPERATURE=36, FAN_SPEED_RPM=rpm, FAN_SPEED_PERCENTAGE=percent,
                 INPUT_VOLTAGE=230000, OUTPUT_VOLTAGE=12000,
                 INPUT_CURRENT=output_current * 12 // 230 * 11 // 10, OUTPUT_CURRENT=output_current, FAN_AF_TYPE=AFO)


def board_readings(tree, fru_id):
    """The thresholds of a simulated board are those of its first sensor."""
    thresholds = [
        Group(id=threshold["id"], Type=threshold["Type"], SIM_FIRE=threshold["FIRE"], SIM_LIMIT=threshold["LIMIT"],
              SIM_ALARM=threshold["ALARM"]) for threshold in mounted(tree, "TMPSNR", fru_id)[0]["THRESHOLD"]]
    return Group(FRU_PRESENCE="true", TEMPERATURE=thresholds[0]["SIM_LIMIT"][1]["TEMP"] + 2, SIM_THRESHOLD=thresholds)


def simulation(tree, board, absent, fan_percent, output_current):
    """The simulation tree: all fan trays and power supplies, and a board."""
    frus = []
    for fru in tree["FRUS"]:
        if fru["id"] in absent:
            readings = Group(FRU_PRESENCE="false")
        elif fru["id"] == board:
            readings = board_readings(tree, board)
        elif fru["Type"] == "FAN":
            readings = fan_readings(tree, fru["id"], fan_percent)
        elif fru["Type"] == "PEM":
            readings = supply_readings(output_current)
        else:
            continue
        frus.append(Group(id=fru["id"], SIM_FRU_DATA=[readings]))
        frus[-1].comment = fru["NAME"] + (", not inserted" if fru["id"] in absent else "")
    return Group(FRUS=frus)
