// The model as text: every member of every record, also those that the dump leaves out.
#pragma once

#include <string>
#include <vector>

#include "load.h"

// A line a record: its type, and the members that are not zero, in their order. A record is followed by the records
// that it embeds or owns, in the order of the members that hold them, a reference is the id and name that it leads to:
//
//   fru_info_t i2cdev=@11"fpc0" name="FPC 0" id=130 driverid=7
//   sim_assembly_id_t program_bytes=[255 1] program_bytes_read=3
//
// Zeros at the end of an array are left out; integers above 0xffff are hexadecimal.
// Each list on the way must be one: every entry points back at what points at it, and the head at its end. What is read
// from a configuration tree has no heads of zeros.
std::vector<std::string> members_of_model(form source);
