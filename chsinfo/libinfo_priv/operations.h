// The operations behind the slots of chassis_priv_ops, as chassis_ops.def lists them.
#pragma once

#include "chsinfo/libdst_priv.h"

#define SLOT(result, slot, operation, parameters) result operation parameters;
#define QUERY(result, slot, operation, wrapper, parameters, arguments) SLOT(result, slot, operation, parameters)
#include "chsinfo/chassis_ops.def"
#undef QUERY
#undef SLOT

// Chooses the source by readability and reads it into `chs_info`; 0 on success.
int libc_configuration_init(void);
