/* The rows of layout.def, asserted in C11. A row that fails to compile is a change of the interface. */
#include <assert.h>
#include <chsinfo/libdst_priv.h>
#include <stddef.h>

#if UINTPTR_MAX == 0xffffffffu
#define BITS(in32, in64) in32
#else
#define BITS(in32, in64) in64
#endif

#define SIZE(type, in32, in64)                                                                                         \
    static_assert(sizeof(type) == BITS(in32, in64), "size of " #type " is not " #in32 " (32 bit), " #in64 " (64 "      \
                                                    "bit)");
#define RECORD(type, in32, in64) SIZE(type, in32, in64)
#define MEMBER(type, member, in32, in64)                                                                               \
    static_assert(offsetof(type, member) == BITS(in32, in64),                                                          \
                  #type "::" #member " is not at " #in32 " (32 bit), " #in64 " (64 bit)");
#define WIDTH(type, member, bytes)                                                                                     \
    static_assert(sizeof(((type *)NULL)->member) == bytes, #type "::" #member " is not " #bytes " bytes wide");
#define HEAD(type)                                                                                                     \
    SIZE(type, 8, 16)                                                                                                  \
    MEMBER(type, tqh_first, 0, 0)                                                                                      \
    MEMBER(type, tqh_last, 4, 8)
#define LINK(type, member)                                                                                             \
    static_assert(sizeof(((type *)NULL)->member) == BITS(8, 16), #type "::" #member " is not two pointers");           \
    MEMBER(type, member.tqe_next, offsetof(type, member), offsetof(type, member))                                      \
    MEMBER(type, member.tqe_prev, offsetof(type, member) + 4, offsetof(type, member) + 8)
#define SLOT(index, slot) MEMBER(chassis_ops_t, slot, 4 * (index), 8 * (index))
#define ENUMERATOR(name, value) static_assert(name == value, #name " is not " #value);
#define COUNT(table, rows)                                                                                             \
    static_assert(sizeof(table) == (rows) * sizeof(char *), #table " does not have " #rows " rows");
#include "chsinfo/layout.def"
