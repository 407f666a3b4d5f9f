// The fixed paths of the description, here and nowhere else.
#pragma once

namespace dst {

constexpr char xml_path[] = "/var/platform/chassis_dst.xml";
constexpr char schema_path[] = "/var/platform/chassis_dst_schema.xsd";
constexpr char config_path[] = "/var/platform/chassis_dst.conf";
constexpr char config_folder[] = "/var/platform"; // where the simulation tree stands

} // namespace dst
