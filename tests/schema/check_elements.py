#!/usr/bin/env python3
"""The schema admits the elements that the reader's tables know, each in its place, and no others.

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
# Tables of attribute values: device types and controllers.
VALUES = {"dst_tag_dev_op", "dst_tag_fan_op", "dst_tag_fpc_op", "dst_tag_sib_op", "dst_tag_fpm_op", "dst_tag_ftc_op",
          "dst_tag_cb_op", "dst_tag_pem_op", "dst_tag_tmpsnr_op", "dst_tag_voltsnr_op", "dst_tag_led_op",
          "dst_tag_lcd_op", "dst_tag_btn_op", "dst_tag_pic_op"}


def reader_tables(source_dir, compiler):
    tables = {}
    for source in sorted(pathlib.Path(source_dir, "chsinfo/libdst/xml").glob("*.cpp")):
        text = subprocess.run([*compiler, "-E", "-P", source], check=True, capture_output=True, text=True).stdout
        # A name is a literal, or a constant of the same file.
        constants = dict(re.findall(r'constexpr char (\w+)\[\] = "(\w+)"', text))
        for table, rows in re.findall(r"(dst_tag_\w+)\[\] = \{(.*?)\{nullptr, nullptr\}", text, re.S):
            names = re.findall(r'\{("\w+"|\w+),', rows)
            tables[table] = {name.strip('"') if '"' in name else constants[name] for name in names}
    return tables


def schema_places(schema):
    """Each place with an element content, and the elements in it."""
    root = ElementTree.parse(schema).getroot()
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
        places.setdefault(place, set()).update(child.get("name") for child in inside)
        for child in inside:
            visit(element.get("name"), child)

    seen = set()
    visit("", named[(XS + "element", "CHASSIS")])
    return places


def main():
    source_dir, *compiler = sys.argv[1:]
    tables = reader_tables(source_dir, compiler)
    problems = [f"{table} is not in the lists of this test"
                for table in tables.keys() - VALUES - {name for names in TABLES.values() for name in names}]
    read = {place: set(names) for place, names in RECORDS.items()}
    for place, names in TABLES.items():
        for name in names:
            read.setdefault(place, set()).update(tables.get(name, {f"(no table {name})"}))
    admitted = schema_places(pathlib.Path(source_dir, "share/libdst/chassis_dst_schema.xsd"))
    for place in sorted(read.keys() | admitted.keys()):
        for what, names in (("read, not in the schema", read.get(place, set()) - admitted.get(place, set())),
                            ("in the schema, not read", admitted.get(place, set()) - read.get(place, set()))):
            problems += [f"{place}/{name}: {what}" for name in sorted(names)]
    print("\n".join(problems) or f"{len(read)} places agree")
    return 1 if problems else 0


sys.exit(main())
