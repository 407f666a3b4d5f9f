#!/usr/bin/env python3
"""The schema admits the elements that the reader's tables know, each in its place and with the type of value that its
parser reads, and no others; its lists of names are those of the name tables.

Usage: check_elements.py SOURCE_DIR COMPILER [FLAG...]     (the flags that preprocess the reader's sources)
"""
import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

XS = "{http://www.w3.org/2001/XMLSchema}"

# Where the elements of a table stand: a place is PARENT/ELEMENT. A table that is not named here fails the test.
TABLES = {
    "/CHASSIS": ["dst_tag_chs_op"],
    "CHASSIS/DEVICE": ["dst_tag_faninfo_op", "dst_tag_faninfo_syspld_op", "dst_tag_fpcinfo_op", "dst_tag_sibinfo_op",
                       "dst_tag_fpminfo_op", "dst_tag_ftcinfo_op", "dst_tag_cbinfo_op", "dst_tag_peminfo_op",
                       "dst_tag_tmpsnrinfo_op", "dst_tag_voltsnrinfo_op", "dst_tag_ledlcdinfo_op", "dst_tag_lcdinfo_op",
                       "dst_tag_buttoninfo_op", "dst_tag_picinfo_op"],
    "DEVICE/I2CDEV": ["dst_tag_i2c_op"],
    "DEVICE/FRUDEV": ["dst_tag_fruinfo_op"],
    "DEVICE/ASIC": ["dst_tag_asic_op"],
    "ASIC/CHIPBCM": ["dst_tag_asic_chipbcm_op"],
    "CHIPBCM/PORT": ["dst_tag_asic_cb_port_op"],
    "DEVICE/PORT": ["dst_tag_optics_op"],
    "PORT/SCPLD": ["dst_tag_optics_scpld_op"],
    "SCPLD/LEDREG": ["dst_tag_optics_scpld_ledreg_op"],
    "SCPLD/LEDBLINKREG": ["dst_tag_optics_scpld_ledblinkreg_op"],
    "PORT/PHY": ["dst_tag_optics_phy_op"],
    "DEVICE/FAN": ["dst_tag_fan_fan_op", "dst_tag_fan_fan_gfc0812_op", "dst_tag_fan_fan_haskel_9hv0812_op",
                   "dst_tag_fan_fan_syspld_op"],
    "FAN/SS2RPM": ["dst_tag_ss2rpm_op"],
    "DEVICE/THRESHOLD": ["dst_tag_tmpsnr_threshold_op"],
    "THRESHOLD/LIMIT": ["dst_tag_tmpsnr_thres_limit_op"],
    "FRUMODEL/MODEL": ["dst_tag_frumodel_op"],
    "CHASSIS/MODEL": ["dst_tag_frumodel_op"],
}
# The record elements of lists, which no table names.
RECORDS = {"CHASSIS/DEVICE": {"I2CDEV", "FRUDEV", "ASIC", "PORT"}, "CHASSIS/FRUMODEL": {"MODEL"}}
# Tables of attribute values, by the schema's type: device types and controllers.
VALUES = {"deviceType": ["dst_tag_dev_op"],
          "ctrlName": ["dst_tag_fan_op", "dst_tag_fpc_op", "dst_tag_sib_op", "dst_tag_fpm_op", "dst_tag_ftc_op",
                       "dst_tag_cb_op", "dst_tag_pem_op", "dst_tag_tmpsnr_op", "dst_tag_voltsnr_op", "dst_tag_led_op",
                       "dst_tag_lcd_op", "dst_tag_btn_op", "dst_tag_pic_op"]}
# Attribute types with a name table: its first and last row.
ATTRIBUTES = {"i2cName": ("dst_i2c_type", "I2C_TYPE_ADT7470", "I2C_TYPE_LCD"),
              "fruName": ("dst_fru_type", "FRU_TYPE_CHASSIS", "FRU_TYPE_TIB"),
              "airflowName": ("dst_aflow_type", "FRU_AFLOW_TYPE_NONE", "FRU_AFLOW_TYPE_UNKNOWN"),
              "powerName": ("dst_power_type", "FRU_POWER_TYPE_AC", "FRU_POWER_TYPE_DC"),
              "alarmName": ("dst_tmpsnr_thres_alarm_type", "ALARM_TYPE_SYS_RED", "ALARM_TYPE_BADFAN_YELLOW")}
# What each parser reads, as the schema's types. One name has one type in a place, so those that a temperature sensor
# reads with 8 bits have the type of the voltage sensor's 32.
PARSERS = {"int32": {"int32"}, "uint32": {"uint32"}, "uint8": {"uint8"}, "double": {"int32"}, "hex": {"upTo0x7FFFFFFF"},
           "hex16": {"upTo0xFFFF"}, "hex8": {"upTo0xFF"}, "string": {"text"}, "bool": {"boolean"}}
WIDER = {("CHASSIS/DEVICE", "REG_OFFSET"), ("CHASSIS/DEVICE", "CFPGAID")}


def reader_tables(source_dir, compiler):
    """Each table: its rows, an element and its handler. Each handler that is a row: what it reads."""
    tables, reads = {}, {}
    for source in sorted(pathlib.Path(source_dir, "chsinfo/libdst/xml").glob("*.cpp")):
        text = subprocess.run([*compiler, "-E", "-P", source], check=True, capture_output=True, text=True).stdout
        text = " ".join(text.split())
        # A name is a literal, or a constant of the same file.
        constants = dict(re.findall(r'constexpr char (\w+)\[\] = "(\w+)"', text))
        for table, rows in re.findall(r"(dst_tag_\w+)\[\] = \{(.*?)\{nullptr, nullptr\}", text):
            tables[table] = [(name.strip('"') if '"' in name else constants[name], handler)
                             for name, handler in re.findall(r'\{("\w+"|\w+), (\w+)\}', rows)]
        for handler, parser in re.findall(r"static int (\w+)\([^)]*\) ?\{ ?(?:return )?libdst_parse_tag_(\w+)\(", text):
            reads[handler] = parser
        for handler, *names in re.findall(r"static int (\w+)\([^)]*\) ?\{ ?dst::kind_of\(dst::element_text\(doc, node\), "
                                          r"(\w+), (\w+), (\w+),", text):
            reads[handler] = tuple(names)
    return tables, reads


def name_tables(source_dir):
    """Each name table: the text of each enumerator, in order."""
    text = pathlib.Path(source_dir, "chsinfo/libdst/model/name_tables.cpp").read_text()
    rows = {macro: re.findall(r'NAME\((\w+), (?:"([^"]*)"|nullptr)\)', body)
            for macro, body in re.findall(r"#define (\w+_NAMES)\(NAME\)(.*?)(?:\nDST_NAME_TABLE)", text, re.S)}
    return {table: rows[macro] for table, macro in re.findall(r"\nDST_NAME_TABLE\((\w+), (\w+)\)", text)}


def names_between(table, first, last):
    enumerators = [enumerator for enumerator, _ in table]
    return {text for _, text in table[enumerators.index(first):enumerators.index(last) + 1] if text}


def schema_places(root):
    """Each place with an element content, and the elements in it with their types."""
    named = {(node.tag, node.get("name")): node for node in root}
    places = {}

    def children(node):
        """The element declarations in a content model, groups and base types included."""
        for child in node:
            if child.tag == XS + "element":
                yield named[(XS + "element", child.get("ref"))] if child.get("ref") else child
            elif child.tag == XS + "group" and child.get("ref"):
                yield from children(named[(XS + "group", child.get("ref"))])
            elif child.tag == XS + "extension":
                if (XS + "complexType", child.get("base")) in named:
                    yield from children(named[(XS + "complexType", child.get("base"))])
                yield from children(child)
            else:
                yield from children(child)

    def visit(parent, element):
        """Declarations of one name in one place may differ in content: the place holds the elements of all."""
        place = f"{parent}/{element.get('name')}"
        content = element.find(XS + "complexType")
        if content is None:
            content = named.get((XS + "complexType", element.get("type")), [])
        inside = list(children(content))
        if not inside or (place, id(element)) in seen:
            return
        seen.add((place, id(element)))
        for child in inside:
            places.setdefault(place, {}).setdefault(child.get("name"), set()).add(child.get("type"))
            visit(element.get("name"), child)

    seen = set()
    visit("", named[(XS + "element", "CHASSIS")])
    return places


def main():
    source_dir, *compiler = sys.argv[1:]
    tables, reads = reader_tables(source_dir, compiler)
    names = name_tables(source_dir)
    schema = ElementTree.parse(pathlib.Path(source_dir, "share/libdst/chassis_dst_schema.xsd")).getroot()
    admitted = schema_places(schema)
    enumerations = {node.get("name"): {value.get("value") for value in node.iter(XS + "enumeration")}
                    for node in schema.iter(XS + "simpleType")}
    listed = {table for group in (TABLES, VALUES) for some in group.values() for table in some}
    problems = [f"{table} is not in the lists of this test" for table in tables.keys() ^ listed]
    for table, rows in tables.items():
        elements = [element for element, _ in rows]
        problems += [f"{table}: {one} has a row already" for one in elements if elements.count(one) > 1]

    def compare(where, read, known):
        problems.extend(f"{where}: {name} is read, and not in the schema" for name in sorted(read - known))
        problems.extend(f"{where}: {name} is in the schema, and not read" for name in sorted(known - read))

    read = {place: set(records) for place, records in RECORDS.items()}
    compared = 0
    for place, some in TABLES.items():
        for element, handler in (row for table in some for row in tables[table]):
            read.setdefault(place, set()).add(element)
            types = admitted.get(place, {}).get(element, set())
            what = reads.get(handler)
            if isinstance(what, tuple):
                table, first, last = what
                compare(f"{place}/{element}", names_between(names[table], first, last),
                        set().union(*(enumerations[one] for one in types)))
                compared += 1
            elif what and (place, element) not in WIDER:
                if types != PARSERS[what]:
                    problems.append(f"{place}/{element}: read as {what}, in the schema {sorted(types)}")
                compared += 1
    for place in read.keys() | admitted.keys():
        compare(place, read.get(place, set()), set(admitted.get(place, {})))
    for one, some in VALUES.items():
        compare(one, {name for table in some for name, _ in tables[table]}, enumerations[one])
    for one, (table, first, last) in ATTRIBUTES.items():
        compare(one, names_between(names[table], first, last), enumerations[one])
    print("\n".join(problems) or f"{len(read)} places and {compared} values agree")
    return 1 if problems or compared < 150 else 0


sys.exit(main())
