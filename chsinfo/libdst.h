/** @file
 * libdst: what hardware a modular network chassis holds, read from its Device Specification (DST).
 *
 * The life of a client:
 *   1. optionally store the EEPROM access functions in `epm_null_ops`;
 *   2. libchs_init() once: reads the description, links it, prints it, makes it available;
 *   3. libchs_..._get_next(NULL), then with each result, until null: every query hands out records of the one model;
 *   4. read the records directly, follow their pointers, change and free nothing;
 *   5. libchs_release(): from here on every pointer handed out is invalid.
 *
 * Conventions:
 *   - Binary interface: member names, order and widths and enumerator values are fixed. Records are allocated by the
 *     library alone.
 *   - Ownership: the model owns every record and list entry, each valid until libchs_release(). A pointer marked
 *     "Reference, not owned" leads to another record of the same model.
 *   - Sources: "Element" is a child of the record's element in the XML form of the description, "Attribute" an
 *     attribute of that element, "key" a key of the record's group in the configuration-tree form. A member that a
 *     form has no source for stays as created: 0, null, the empty text or the empty list, unless said otherwise.
 *   - Numbers in the XML form: "decimal" reads a leading signed decimal integer, "base prefix" also 0x (hexadecimal)
 *     and a leading 0 (octal). Both are clamped to the signed 32-bit range; the low bits that fit are stored. In the
 *     configuration-tree form numbers are integers as its library reads them; the low bits are stored.
 *   - Names: a member with an enumeration type is read as text that stands in the enumeration's table: the whole
 *     text in the XML form, while in the configuration-tree form the beginning of a row suffices and text unknown to
 *     the table gives -1. Such a member therefore need not hold an enumerator. A `ctrl_type` always does: "ctrl" is
 *     the whole name of a controller of that kind of device (for fan trays, in the configuration-tree form, its
 *     beginning); with another one the XML form is refused, while the configuration-tree form loses the device, and
 *     for some kinds those after it.
 *   - Lists: a list says by which link its entries follow. TAILQ_FOREACH(entry, &list, link) of <sys/queue.h> walks it.
 *   - Texts are NUL-terminated; longer ones are cut to fit.
 *   - Ids are expected to be unique in their list, but nothing enforces it: where they repeat, the first record
 *     counts, unless said otherwise.
 *   - Registers, masks and the like are handed through; the library attaches no meaning to them.
 *   - Threads: there are no locks. Queries may run side by side; initialisation and release must run alone.
 */
#ifndef CHSINFO_LIBDST_H
#define CHSINFO_LIBDST_H

#include <stdbool.h>
#include <stdint.h>

/** @name Version
 * Of this header, as numbers and as one that compares: 1.2.3 is 10203. The version stands here alone; the build reads
 * it from these lines for libdst.pc and the name of the library.
 * @{ */
#define DST_VERSION_MAJOR 1
#define DST_VERSION_MINOR 0
#define DST_VERSION_PATCH 0
#define DST_VERSION (DST_VERSION_MAJOR * 10000 + DST_VERSION_MINOR * 100 + DST_VERSION_PATCH)
/** @} */

/** Marks what the library exports. */
#if defined(__GNUC__)
#define DST_API __attribute__((visibility("default")))
#else
#define DST_API
#endif

/** In C++ the underlying type of each enumeration is int, so that -1 (unknown text) is a value of it. In C the compiler
 * chooses, and may take an unsigned type, where `< 0` never holds: compare as int, `(int)member == -1`. */
#ifdef __cplusplus
#define DST_ENUM_INT : int
#else
#define DST_ENUM_INT
#endif

/** Marks a function that this header defines: one in all of a C++ program, one a file in C. */
#ifdef __cplusplus
#define DST_INLINE inline
#else
#define DST_INLINE static inline
#endif

/** A list head: the first entry, null when the list is empty; and where the next entry goes, the last entry's
 * `tqe_next` or the head's own `tqh_first`. A head of zeros reads as empty. */
#define DST_TAILQ_HEAD_MEMBERS(entry)                                                                                  \
    entry *tqh_first;                                                                                                  \
    entry **tqh_last

/** A link inside a list entry: the next entry, null at the end; and what points at this entry, the previous entry's
 * `tqe_next` or the head's `tqh_first`. */
#define DST_TAILQ_LINK_MEMBERS(entry)                                                                                  \
    entry *tqe_next;                                                                                                   \
    entry **tqe_prev

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Enumerations and name tables ----
 *
 * A table holds the text of each enumerator, indexed by its value; the last row stands at the _MAX value, which is
 * never stored. A row may hold the empty text, which only an empty text matches, or null, which nothing matches. The
 * tables are constant. */

/** The text of a table below for a member, which may be -1: DST_NAME(dst_fru_type, fru->fru_type). The empty text for a
 * row that holds null, and outside the table. Evaluates `index` once. */
#define DST_NAME(table, index) dst_name_of(table, sizeof(table) / sizeof *(table), index)

/** DST_NAME() of a table with so many rows. */
DST_INLINE const char *dst_name_of(const char *const *table, int64_t rows, int64_t index) {
    return index >= 0 && index < rows && table[index] ? table[index] : "";
}

/** Kind of an I2C device. */
typedef enum _i2cdev_type_s DST_ENUM_INT {
    I2C_TYPE_UNKNOWN = 0,
    I2C_TYPE_ADT7470 = 1,
    I2C_TYPE_PSU = 2, /**< Named "PSUEPM". */
    I2C_TYPE_FPC = 3,
    I2C_TYPE_SIB = 4,
    I2C_TYPE_FPM = 5,
    I2C_TYPE_FTC = 6,
    I2C_TYPE_CB = 7,
    I2C_TYPE_TMPSNR = 8,
    I2C_TYPE_VOLTSNR = 9,
    I2C_TYPE_LED = 10,
    I2C_TYPE_PIC = 11,
    I2C_TYPE_GFC0812 = 12,
    I2C_TYPE_9HV0812 = 13,
    I2C_TYPE_MEZZ = 14,
    I2C_TYPE_LCD = 15,
    I2C_TYPE_MAX = 16,
} i2cdev_type_t;

/** Names of i2cdev_type_t. */
extern DST_API const char *const dst_i2c_type[I2C_TYPE_MAX + 1];

/** Controller that drives a device. */
typedef enum _ctrl_type_s DST_ENUM_INT {
    CTRL_TYPE_UNKNOWN = 0,
    CTRL_TYPE_ADT7470 = 1,
    CTRL_TYPE_FANSYSPLD = 2,
    CTRL_TYPE_PSUEPM = 3,
    CTRL_TYPE_FPC = 4,
    CTRL_TYPE_SIB = 5,
    CTRL_TYPE_FPM = 6,
    CTRL_TYPE_FTC = 7,
    CTRL_TYPE_CB = 8,
    CTRL_TYPE_TMP435 = 9,
    CTRL_TYPE_TMPGENERIC = 10,
    CTRL_TYPE_PIC = 11,
    CTRL_TYPE_KORVLED = 12,
    CTRL_TYPE_QVLBTN = 13,
    CTRL_TYPE_CORETEMP = 14,
    CTRL_TYPE_GFC0812 = 15,
    CTRL_TYPE_9HV0812 = 16,
    CTRL_TYPE_DURNLED = 17,
    CTRL_TYPE_TMP432 = 18,
    CTRL_TYPE_LTC3880 = 19,
    CTRL_TYPE_GENERICLED = 20,
    CTRL_TYPE_LM73 = 21,
    CTRL_TYPE_ZMBLED = 22,
    CTRL_TYPE_CBEPM = 23,
    CTRL_TYPE_HWMON = 24,
    CTRL_TYPE_HMCTEMP = 25,
    CTRL_TYPE_TMP75 = 26,
    CTRL_TYPE_ADS7830 = 27,
    CTRL_TYPE_MAX207XX = 28,
    CTRL_TYPE_KXCHIPTEMP = 29,  /**< Named "KXTEMP". */
    CTRL_TYPE_DS1721 = 30,      /**< Without a name. */
    CTRL_TYPE_MAX6657 = 31,     /**< Without a name. */
    CTRL_TYPE_CPU_CORETMP = 32, /**< Without a name. */
    CTRL_TYPE_GENERICLCD = 33,  /**< Without a name in the table; the XML form knows "GENERICLCD". */
    CTRL_TYPE_WQCHIPTEMP = 34,  /**< Named "WQTEMP". */
    CTRL_TYPE_DIETEMP = 35,
    CTRL_TYPE_TIB = 36,
    CTRL_TYPE_MAX = 37,
} ctrl_type_t;

/** Names of ctrl_type_t. */
extern DST_API const char *const dst_ctrl_type[CTRL_TYPE_MAX + 1];

/** Chassis family. */
typedef enum __chassis_family_e DST_ENUM_INT {
    CHASSIS_FAMILY_NONE = 0,
    CHASSIS_FAMILY_DUMMY = 1,
    CHASSIS_FAMILY_KORV = 2,
    CHASSIS_FAMILY_PELIAN = 3,
    CHASSIS_FAMILY_TIRMOS = 4,
    CHASSIS_FAMILY_KUZ = 5,
    CHASSIS_FAMILY_KORV_GEN2 = 6,
    CHASSIS_FAMILY_DURN = 7,
    CHASSIS_FAMILY_HASKEL = 8,
    CHASSIS_FAMILY_QVL = 9,
    CHASSIS_FAMILY_ZMB = 10,
    CHASSIS_FAMILY_RQ7100MP = 11, /**< Named "RQ-7100MP". */
    CHASSIS_FAMILY_BRANNO = 12,
    CHASSIS_FAMILY_GV = 13,
    CHASSIS_FAMILY_QVL_BRANNO_1RU = 14, /**< Named "BRANNO_QVL_1RU". */
    CHASSIS_FAMILY_QVL_BRANNO_3RU = 15, /**< Named "BRANNO_QVL_3RU". */
    CHASSIS_FAMILY_TOLMAR = 16,
    CHASSIS_FAMILY_MERISOL = 17,
    CHASSIS_FAMILY_CALDRE = 18,
    CHASSIS_FAMILY_OSTWIN = 19, /**< Without a name. */
    CHASSIS_FAMILY_MAX = 20,
} chassis_family_t;

/** Names of chassis_family_t. */
extern DST_API const char *const dst_chassis_family_type[CHASSIS_FAMILY_MAX + 1];

/** Kind of a FRU. */
typedef enum _fru_type_s DST_ENUM_INT {
    FRU_TYPE_UNKNOWN = 0,
    FRU_TYPE_CHASSIS = 1,
    FRU_TYPE_CPU = 2,  /**< Without a name. */
    FRU_TYPE_DRAM = 3, /**< Without a name. */
    FRU_TYPE_FAN = 4,
    FRU_TYPE_PEM = 5,
    FRU_TYPE_PIC = 6,
    FRU_TYPE_TSENSOR = 7,   /**< Named "TMPSNR". */
    FRU_TYPE_VSENSOR = 8,   /**< Named "VOLTSNR". */
    FRU_TYPE_VOLTMETER = 9, /**< Without a name. */
    FRU_TYPE_LED = 10,
    FRU_TYPE_BTN = 11,
    FRU_TYPE_CRAFT = 12, /**< Without a name. */
    FRU_TYPE_FPC = 13,
    FRU_TYPE_SIB = 14,
    FRU_TYPE_FPM = 15,
    FRU_TYPE_FTC = 16,
    FRU_TYPE_CB = 17,
    FRU_TYPE_SPM = 18,
    FRU_TYPE_LCD = 19,
    FRU_TYPE_TIB = 20,
    FRU_TYPE_MAX = 21,
} fru_type_t;

/** Names of fru_type_t. */
extern DST_API const char *const dst_fru_type[FRU_TYPE_MAX + 1];

/** Whether a FRU is a physical unit of its own. */
typedef enum _fru_removable_type_s DST_ENUM_INT {
    FRU_REMOVABLE_TYPE_UNKNOWN = 0,
    FRU_REMOVABLE_TYPE_FIXED = 1,
    FRU_REMOVABLE_TYPE_VIRTUAL = 2,
    FRU_REMOVABLE_TYPE_MAX = 3,
} fru_removable_type_t;

/** Names of fru_removable_type_t. */
extern DST_API const char *const dst_fru_removable_type[FRU_REMOVABLE_TYPE_MAX + 1];

/** Air-flow direction. Every value has a name, and there is no _MAX. */
typedef enum __fru_aflow_type_e DST_ENUM_INT {
    FRU_AFLOW_TYPE_NONE = 0,
    FRU_AFLOW_TYPE_AFO_FB = 1, /**< Out, front to back; named "AFO". */
    FRU_AFLOW_TYPE_AFI_BF = 2, /**< In, back to front; named "AFI". */
    FRU_AFLOW_TYPE_UNKNOWN = 3,
} fru_aflow_type_t;

/** Names of fru_aflow_type_t. */
extern DST_API const char *const dst_aflow_type[FRU_AFLOW_TYPE_UNKNOWN + 1];

/** Current of a power supply. */
typedef enum __fru_power_type_e DST_ENUM_INT {
    FRU_POWER_TYPE_UNKNOWN = 0,
    FRU_POWER_TYPE_AC = 1,
    FRU_POWER_TYPE_DC = 2,
    FRU_POWER_TYPE_MAX = 3,
} fru_power_type_t;

/** Names of fru_power_type_t. */
extern DST_API const char *const dst_power_type[FRU_POWER_TYPE_MAX + 1];

/** Alarm that a temperature threshold raises. 0 is a real alarm. */
typedef enum _alarm_type_s DST_ENUM_INT {
    ALARM_TYPE_SYS_RED = 0,
    ALARM_TYPE_SYS_YELLOW = 1,
    ALARM_TYPE_BADFAN_RED = 2,
    ALARM_TYPE_BADFAN_YELLOW = 3,
    ALARM_TYPE_MAX = 4,
} alarm_type_t;

/** Names of alarm_type_t. */
extern DST_API const char *const dst_tmpsnr_thres_alarm_type[ALARM_TYPE_MAX + 1];

/** What a LED shows. */
typedef enum _led_type_s DST_ENUM_INT {
    LED_TYPE_UNKNOWN = 0,
    LED_TYPE_BEACON = 1,
    LED_TYPE_SYSTEM = 2,
    LED_TYPE_MASTER = 3,
    LED_TYPE_ALARM = 4,
    LED_TYPE_MAJ_ALARM = 5,
    LED_TYPE_MIN_ALARM = 6,
    LED_TYPE_POWER = 7,
    LED_TYPE_SSD = 8,
    LED_TYPE_QIC0_STATUS = 9,  /**< Named "QIC0". */
    LED_TYPE_QIC1_STATUS = 10, /**< Named "QIC1". */
    LED_TYPE_MGMT_P0 = 11,
    LED_TYPE_MGMT_P1 = 12,
    LED_TYPE_UPLINK = 13,
    LED_TYPE_PHONE_HOME = 14,
    LED_TYPE_FTRAY_STATUS = 15, /**< Without a name. */
    LED_TYPE_FPC_SYSTEM = 16,   /**< Without a name. */
    LED_TYPE_HA = 17,
    LED_TYPE_EM_SLOT = 18,
    LED_TYPE_EXT_SSD0 = 19,
    LED_TYPE_EXT_SSD1 = 20,
    LED_TYPE_CLOUD = 21,
    LED_TYPE_MAX = 22,
} led_type_t;

/** Names of led_type_t. */
extern DST_API const char *const dst_led_type[LED_TYPE_MAX + 1];

/** Kind of a LCD. */
typedef enum _lcd_type_s DST_ENUM_INT {
    LCD_TYPE_UNKNOWN = 0,
    LCD_TYPE_DISPLAY_FP0 = 1, /**< Named "LCD_FP0". */
    LCD_TYPE_MAX = 2,
} lcd_type_t;

/** Names of lcd_type_t. */
extern DST_API const char *const dst_lcd_type[LCD_TYPE_MAX + 1];

/** Kind of a button. */
typedef enum _btn_type_s DST_ENUM_INT {
    BTN_TYPE_UNKNOWN = 0,
    BTN_TYPE_POWER = 1,
    BTN_TYPE_RESET = 2,
    BTN_TYPE_MAX = 3,
} btn_type_t;

/** Names of btn_type_t. */
extern DST_API const char *const dst_btn_type[BTN_TYPE_MAX + 1];

/** Variant of the CPLD that serves an optical port. */
typedef enum _scpld_type_s DST_ENUM_INT {
    SCPLD_TYPE_UNKNOWN = 0,
    SCPLD_TYPE_0 = 1,
    SCPLD_TYPE_1 = 2,
    SCPLD_TYPE_2 = 3,
    SCPLD_TYPE_3 = 4,
    SCPLD_TYPE_4 = 5,
    SCPLD_TYPE_5 = 6,
    SCPLD_TYPE_6 = 7,
    SCPLD_TYPE_7 = 8,
    SCPLD_TYPE_MAX = 9,
} scpld_type_t;

/** Names of scpld_type_t. */
extern DST_API const char *const dst_scpld_type[SCPLD_TYPE_MAX + 1];

/** Kinds of CPLD register: the indices of scpld_info_t::offset. Without a name table. */
enum _scpld_reg_type_s DST_ENUM_INT {
    SCPLD_REG_TYPE_UNKNOWN = 0,
    SCPLD_REG_TYPE_SFP_CTRL = 1,
    SCPLD_REG_TYPE_STS_LED = 2,
    SCPLD_REG_TYPE_BLINK_STS_LED = 3,
    SCPLD_REG_TYPE_SL_CTRL_STAT4 = 4,
    SCPLD_REG_TYPE_MAX = 5,
};

/** Kind of a PHY. */
typedef enum _phy_type_s DST_ENUM_INT {
    PHY_TYPE_UNKNOWN = 0,
    PHY_TYPE_INTERNAL = 1, /**< Named "INTERNAL_PHY". */
    PHY_TYPE_MAX = 2,
} phy_type_t;

/** Names of phy_type_t. */
extern DST_API const char *const dst_phy_type[PHY_TYPE_MAX + 1];

/** Kind of a transceiver. */
typedef enum _xcvr_type_s DST_ENUM_INT {
    XCVR_TYPE_UNKNOWN = 0,
    XCVR_TYPE_QSFP = 1,
    XCVR_TYPE_MAX = 2,
} xcvr_type_t;

/** Names of xcvr_type_t. */
extern DST_API const char *const dst_xcvr_type[XCVR_TYPE_MAX + 1];

/** Kind of a switching chip. */
typedef enum _chip_type_s DST_ENUM_INT {
    CHIP_TYPE_UNKNOWN = 0,
    CHIP_TYPE_5685 = 1,
    CHIP_TYPE_MAX = 2,
} chip_type_t;

/** Names of chip_type_t. */
extern DST_API const char *const dst_asic_chip_type[CHIP_TYPE_MAX + 1];

/** Board whose identification EEPROM an EPM record holds. Without a name table. */
typedef enum _cepm_type_s DST_ENUM_INT {
    EPM_TYPE_UNKNOWN = 0,
    EPM_TYPE_MAINBOARDID = 1,
    EPM_TYPE_CPUBOARDID = 2,
    EPM_TYPE_MAX = 3,
} cepm_type_t;

/** Index of a device kind in dst_dev_type. */
enum _dst_dev_type_val_s DST_ENUM_INT {
    DST_I2C_DEV_IDX = 0, /**< Named "i2c", in lower case. */
    DST_FAN_DEV_IDX = 1,
    DST_PSU_DEV_IDX = 2, /**< Named "PEM". */
    DST_TMPSNR_DEV_IDX = 3,
    DST_LED_DEV_IDX = 4,
    DST_PIC_DEV_IDX = 5,
    DST_FRU_DEV_IDX = 6,
    DST_OPTICS_DEV_IDX = 7, /**< Named "optics", in lower case. */
    DST_ASIC_DEV_IDX = 8,   /**< Named "asic", in lower case. */
    DST_FPC_DEV_IDX = 9,
    DST_CB_DEV_IDX = 10,
    DST_SIB_DEV_IDX = 11,
    DST_FPM_DEV_IDX = 12,
    DST_FTC_DEV_IDX = 13,
    DST_BTN_DEV_IDX = 14,
    DST_VOLTSNR_DEV_IDX = 15,
    DST_LCD_DEV_IDX = 16,
    DST_TIB_DEV_IDX = 17,
    DST_MAX_DEVICE = 18,
};

/** Device kinds: the values of the attribute "type" of a DEVICE element. */
extern DST_API const char *const dst_dev_type[DST_MAX_DEVICE + 1];

/* ---- The chassis ---- */

/** The chassis-wide numbers. The first member of the model. Elements are children of the root element CHASSIS, keys
 * those of the root group "CHASSIS". Owned by the model; valid until libchs_release(). */
typedef struct _chassis_info_s {
    /** Chassis family. Element FAMILY (name, 0 when unknown); key "FAMILY", refused when unknown. */
    chassis_family_t family;
    uint32_t major;             /**< Version of the description. Element VERSION (decimal); key "VERSION". */
    uint32_t minor;             /**< Minor version. No source fills it. */
    uint32_t ndram_slots;       /**< DRAM slots. Element NDRAMSLOTS (decimal); key "NDRAMSLOTS". */
    uint32_t nfan_slots;        /**< Fan slots. Element NFANSLOTS (decimal); key "NFANSLOTS". */
    uint32_t npem_slots;        /**< Power-supply slots. Element NPEMSLOTS (decimal); key "NPEMSLOTS". */
    uint32_t nfpc_slots;        /**< FPC slots. Element NFPCSLOTS (decimal); key "NFPCSLOTS". */
    uint32_t nsib_slots;        /**< SIB slots. Element NSIBSLOTS (decimal); key "NSIBSLOTS". */
    uint32_t nfpm_slots;        /**< FPM slots. Element NFPMSLOTS (decimal); key "NFPMSLOTS". */
    uint32_t nftc_slots;        /**< FTC slots. Element NFTCSLOTS (decimal); key "NFTCSLOTS". */
    uint32_t ncb_slots;         /**< CB slots. Element NCBSLOTS (decimal); key "NCBSLOTS". */
    uint32_t npic_slots;        /**< PIC slots. Element NPICSLOTS (decimal); key "NPICSLOTS". */
    uint32_t ntib_slots;        /**< TIB slots. No element; key "NTIBSLOTS". */
    uint32_t nfpgas;            /**< FPGAs. Element NFPGAS (decimal); key "NFPGAS". */
    uint32_t ntmpsnrs;          /**< Temperature sensors. Element NTMPSENSORS (decimal); key "NTMPSENSORS". */
    uint32_t nvoltsnrs;         /**< Voltage sensors. Element NVOLTSENSORS (decimal); key "NVOLTSENSORS". */
    uint32_t nfpleds;           /**< LEDs counted by NFPLEDS. Element NFPLEDS (decimal); key "NFPLEDS". */
    uint32_t nbpleds;           /**< LEDs counted by NBPLEDS. Element NBPLEDS (decimal); key "NBPLEDS". */
    uint32_t nbuttons;          /**< Buttons. Element NBUTTONS (decimal); no key. */
    uint32_t feature;           /**< Feature word. Element FEATURE (decimal); key "FEATURE". */
    uint32_t nfrus;             /**< FRUs read. Those of a list that a later list replaced (XML form) count too. */
    uint32_t pci_busaddr;       /**< PCI bus address. Element PCIBUSADDR (decimal); key "PCIBUSADDR". */
    uint32_t pci_subaddr1;      /**< PCI sub-address 1. Element PCISUBADDR1 (decimal); key "PCISUBADDR1". */
    uint32_t pci_subaddr2;      /**< PCI sub-address 2. Element PCISUBADDR2 (decimal); key "PCISUBADDR2". */
    uint32_t pci_busaddr_mezz;  /**< The mezzanine's. Element PCIBUSADDR_MEZZ (decimal); key "PCIBUSADDR_MEZZ". */
    uint32_t pci_subaddr1_mezz; /**< The mezzanine's. Element PCISUBADDR1_MEZZ (decimal); key "PCISUBADDR1_MEZZ". */
    uint32_t pci_subaddr2_mezz; /**< The mezzanine's. Element PCISUBADDR2_MEZZ (decimal); key "PCISUBADDR2_MEZZ". */
    /** Overrides the PCI listing. Element LSPCI_OVERRIDE (decimal); key "LSPCI_OVERRIDE". */
    uint32_t lspci_override;
    uint32_t enable_resiliency; /**< Resiliency switch. No element; key "RESILIENCY". */
    char platform_name[128];    /**< Platform name. No element; key "PLATFORM_NAME". */
    uint32_t sib_init_spmb;     /**< SIB initialisation setting. No element; key "SIBINITSPMB". */
    /** Enhanced environment-monitoring thresholds. No element; key "ENHANCEDEMTHRESHOLD". */
    uint32_t enhanced_em_threshold;
    /** Power-supply fan control is supported. No element; key "SUPPORTPSUFANCTL". */
    uint32_t support_psu_fan_ctl;
    /** Default debounce count of fan faults. No element; key "PSM_FANFLT_DFLT_DEBOUNCE_CNT". */
    uint32_t psm_fan_flt_dflt_debounce_cnt;
} chassis_info_t;

/* ---- I2C devices ---- */

/** Values along a chain of multiplexers. Embedded in i2c_dev_info_t. */
typedef struct _i2c_mc_info_s {
    int32_t rentry[4];   /**< One value a multiplexer: the key's integers, at most four. */
    int32_t num_entries; /**< How many of `rentry` are in use, 0 to 4. */
} i2c_mc_info_t;

/** A device on an I2C bus: element I2CDEV, key "I2CDEV" in "BUS". Owned by the model; valid until libchs_release(). */
typedef struct _i2c_dev_info_s {
    char name[128];     /**< Device name. Element NAME; key "NAME". */
    char syspath[128];  /**< Path in the operating system's device tree. Element SYSPATH; key "SYSPATH". */
    char parent[128];   /**< Name of the parent device or bus, free text. Element PARENT; key "PARENT". */
    char location[128]; /**< Location. Element LOCATION; key "LOCATION". */
    uint32_t id;        /**< What FRUs refer to the device by. Attribute "id" (decimal); key "id". */
    uint32_t driver_id; /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    i2cdev_type_t type; /**< Kind. Attribute "type" (name); key "Type", -1 also when missing. */
    uint8_t i2caddr;    /**< Address on the bus. Element I2CADDR (base prefix); key "I2CADDR". */
    uint8_t segment;    /**< Bus segment. Element SEGMENT (base prefix); key "SEGMENT". */
    uint8_t reg_offset; /**< Register offset. Element REGOFFSET (base prefix); key "REGOFFSET". */
    uint8_t muxaddr;    /**< Address of the multiplexer in front. Element MUXADDR (base prefix); key "MUXADDR". */
    uint8_t smbus;      /**< SMBus number. No element; key "SMBUS". */
    /** Addresses of a chain of multiplexers. No element; key "MC_MUXADDR". */
    i2c_mc_info_t mc_mux_addr_list;
    /** Channel setting of each multiplexer of that chain. No element; key "MC_CHANNEL". */
    i2c_mc_info_t mc_chan_set_list;
    /** Multiplexer addresses of the presence-detect path. No element; key "PRESENCE_MUXADDR". */
    i2c_mc_info_t presence_mux_addr_list;
    /** Channel settings of the presence-detect path. No element; key "PRESENCE_CHANNEL". */
    i2c_mc_info_t presence_chan_set_list;
    uint8_t presence_offset;    /**< Register offset of the presence bit. No element; key "PRESENCE_OFFSET". */
    uint8_t presence_smbus;     /**< SMBus number of the presence-detect path. No element; key "PRESENCE_SMBUS". */
    uint8_t presence_cpld_addr; /**< Address of the CPLD that reports presence. No element; key "PRESENCE_CPLD_ADDR". */
    uint8_t muxaddr1;           /**< Second-level multiplexer. Element MUXADDR1 (base prefix); key "MUXADDR1". */
    uint8_t muxaddr2;           /**< Third-level multiplexer. Element MUXADDR2 (base prefix); key "MUXADDR2". */
    uint8_t master_no;          /**< Bus master number. No source fills it. */
    uint8_t port_no;            /**< Port number. No source fills it. */
} i2c_dev_info_t;

/** The link of libdst_i2cdev_info_t. */
typedef struct _i2cdev_info_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _libdst_i2cdev_info_s);
} i2cdev_info_next_t;

/** Entry of the I2C device list. Owned by the model; valid until libchs_release(). */
typedef struct _libdst_i2cdev_info_s {
    i2c_dev_info_t i2cdev_info;          /**< The device; its address is the entry's. */
    i2cdev_info_next_t i2cdev_info_next; /**< Link. */
} libdst_i2cdev_info_t;

/** List of I2C devices. */
typedef struct _i2cdev_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _libdst_i2cdev_info_s);
} i2cdev_info_list_t;

/* ---- Simulated hardware ----
 *
 * Only the configuration-tree form carries it, in its "FRUS" groups; what the simulation tree gives for a FRU replaces
 * the FRU's `virtual_fru_data`. Every record belongs to the FRU that it hangs from and is valid until libchs_release().
 * Voltages, currents and temperatures are in the units of the configuration. */

/** A simulated identification EEPROM: the integer array of key "SIM_ASSEMBLY_DATA". Owned by its FRU. */
typedef struct _sim_assembly_id_s {
    uint8_t program_bytes[128]; /**< Contents, the low 8 bits of each value. */
    int32_t program_bytes_read; /**< How many bytes of `program_bytes` are set, 0 to 128; the rest has no meaning. */
} sim_assembly_id_t;

/** The link of sim_ss2rpm_fan_info_t. */
typedef struct _sim_ss2rpm_fan_info_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _sim_ss2rpm_fan_info_s);
} sim_ss2rpm_fan_info_next_t;

/** Row of a simulated fan speed table, and list entry: key "SIM_SS2RPM". Owned by its sim_fru_data_t. */
typedef struct _sim_ss2rpm_fan_info_s {
    uint32_t speed;                                  /**< Speed setting. Key "SIM_SPEED". */
    uint32_t rpm;                                    /**< Expected revolutions per minute. Key "SIM_RPM". */
    uint32_t tolerance;                              /**< Tolerance of `rpm`. Key "SIM_TOLERANCE". */
    uint32_t pwmval;                                 /**< PWM value of the setting. Key "SIM_PWMVAL". */
    sim_ss2rpm_fan_info_next_t sim_ss2rpm_info_next; /**< Link. */
} sim_ss2rpm_fan_info_t;

/** List of simulated fan speed rows. */
typedef struct _sim_ss2rpm_fan_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _sim_ss2rpm_fan_info_s);
} sim_ss2rpm_fan_info_list_t;

/** The link of sim_limit_t. */
typedef struct _sim_limit_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _sim_limit_s);
} sim_limit_next_t;

/** Fan-step limit of a simulated threshold, and list entry: key "SIM_LIMIT". Owned by its threshold. */
typedef struct _sim_limit_s {
    uint32_t id;                 /**< Limit id. Key "id". */
    uint32_t temp;               /**< Temperature of the limit. Key "TEMP". */
    int32_t fan_step_id;         /**< Fan step tied to the limit; -1 when not given. Key "FANSTEPID". */
    sim_limit_next_t limit_next; /**< Link. */
} sim_limit_t;

/** List of simulated limits. */
typedef struct _sim_limit_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _sim_limit_s);
} sim_limit_list_t;

/** The link of sim_alarm_info_t. */
typedef struct _sim_alarm_info_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _sim_alarm_info_s);
} sim_alarm_info_next_t;

/** Alarm of a simulated threshold, and list entry: key "SIM_ALARM". Owned by its threshold. */
typedef struct _sim_alarm_info_s {
    uint32_t id;                      /**< Alarm id. Key "id". */
    uint32_t alarm;                   /**< Limit value of the alarm. Key "LIMIT". */
    alarm_type_t type;                /**< Alarm raised. Key "Type"; -1 also when it is missing. */
    sim_alarm_info_next_t alarm_next; /**< Link. */
} sim_alarm_info_t;

/** List of simulated alarms. */
typedef struct _sim_alarm_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _sim_alarm_info_s);
} sim_alarm_list_t;

/** The link of sim_tmpsnr_threshold_t. */
typedef struct _sim_tmpsnr_threshold_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _sim_tmpsnr_threshold_s);
} sim_tmpsnr_threshold_next_t;

/** Simulated temperature threshold, and list entry: key "SIM_THRESHOLD". Owned by its sim_fru_data_t. */
typedef struct _sim_tmpsnr_threshold_s {
    char name[128];                                 /**< Name. No source fills it. */
    uint32_t id;                                    /**< Threshold id. Key "id". */
    uint32_t fire;                                  /**< Fire temperature. Key "SIM_FIRE". */
    fru_aflow_type_t aflow_type;                    /**< Air flow it applies to. Key "Type", a number. */
    sim_alarm_list_t alarm_list;                    /**< Alarms, by `alarm_next`. Key "SIM_ALARM". */
    sim_limit_list_t limit_list;                    /**< Fan-step limits, by `limit_next`. Key "SIM_LIMIT". */
    sim_tmpsnr_threshold_next_t sim_threshold_next; /**< Link. */
} sim_tmpsnr_threshold_t;

/** List of simulated thresholds. */
typedef struct _sim_threshold_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _sim_tmpsnr_threshold_s);
} sim_threshold_list_t;

/** The link of sim_fru_data_t. */
typedef struct _sim_fru_data_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _sim_fru_data_s);
} sim_fru_data_next_t;

/** Simulated readings of a FRU, and list entry: key "SIM_FRU_DATA". Owned by its FRU. */
typedef struct _sim_fru_data_s {
    char presence[6];                      /**< Presence as configured, for example "true". Key "FRU_PRESENCE". */
    uint32_t temperature;                  /**< Temperature. Key "TEMPERATURE". */
    uint32_t fan_rpm;                      /**< Fan speed in revolutions per minute. Key "FAN_SPEED_RPM". */
    uint32_t fan_speed_percent;            /**< Fan speed in percent. Key "FAN_SPEED_PERCENTAGE". */
    uint32_t input_voltage;                /**< Input voltage. Key "INPUT_VOLTAGE". */
    uint32_t output_voltage;               /**< Output voltage. Key "OUTPUT_VOLTAGE". */
    uint32_t input_current;                /**< Input current. Key "INPUT_CURRENT". */
    uint32_t output_current;               /**< Output current. Key "OUTPUT_CURRENT". */
    uint32_t fan_af_type;                  /**< Air flow, the number of a fru_aflow_type_t. Key "FAN_AF_TYPE". */
    sim_ss2rpm_fan_info_list_t sim_ss2rpm; /**< Fan speed table, by `sim_ss2rpm_info_next`. Key "SIM_SS2RPM". */
    sim_threshold_list_t sim_ts_threshold; /**< Temperature thresholds, by `sim_threshold_next`. Key "SIM_THRESHOLD". */
    sim_fru_data_next_t sim_fru_data_next; /**< Link. */
} sim_fru_data_t;

/** List of simulated readings. */
typedef struct _sim_fru_data_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _sim_fru_data_s);
} sim_fru_data_list_t;

/* ---- Field-replaceable units (FRUs) ---- */

/** A FRU: element FRUDEV, key "FRUS". Owned by the model; valid until libchs_release(). */
typedef struct _fru_info_s {
    /** I2C device of its identification EEPROM; null for a negative `i2cdev_id`, and in a model without I2C devices. Of
     * several with the id the first; with an `i2cdev_id_ext` other than -1, the last until both are found. Set by
     * linking. Reference, not owned. */
    i2c_dev_info_t *i2cdev;
    /** Extension I2C device; null when `i2cdev_id_ext` names none, and wherever `i2cdev` is null. Set by linking.
     * Reference, not owned. */
    i2c_dev_info_t *i2cdev_ext;
    char name[128];    /**< Name. Element NAME; key "NAME". */
    uint32_t id;       /**< What devices and other FRUs refer to it by. Attribute "id" (decimal); key "id". */
    uint32_t driverid; /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    uint32_t epmsize;  /**< Size of the identification EEPROM's contents. Element EPMSIZE (decimal); key "EPMSIZE". */
    /** Parent FRU; null at the top, and in a model without I2C devices. Set by linking. Reference, not owned. */
    struct _fru_info_s *parent;
    fru_type_t fru_type; /**< Kind. Attribute "type" (name); key "Type", -1 also when it is missing. */
    fru_removable_type_t fru_removable_type; /**< Element TYPE (name, else 0); key "REMOVABLE_TYPE". */
    /** Statistics file of a virtual FRU, at most 127 characters. Element VIRTUAL_FRU_STAT_FILE; no key. */
    char virtual_fru_stats_file_name[256];
    uint8_t slot; /**< Slot number. Element SLOTID (decimal); key "SLOTID". */
    /** Logical slot number; `slot` when not given. Element LOGICAL_SLOTID (decimal); key "LOGICAL_SLOTID". */
    uint8_t logical_slot;
    bool epmvalid;        /**< The EEPROM's contents are valid. Element EPMVALID (true, false); key "EPMVALID", text. */
    uint32_t hyst_offset; /**< Hysteresis offset. Element HYST_OFFSET (decimal); key "HYST_OFFSET". */
    /** Maximum number of alarm reasons. Element MAX_ALARM_REASONS (decimal); key "MAX_ALARM_REASONS". */
    uint32_t max_alarm_reasons;
    sim_assembly_id_t *virtual_i2c_data; /**< Simulated EEPROM or null. Owned. No element; key "SIM_ASSEMBLY_DATA". */
    /** Simulated readings, by `sim_fru_data_next`. No element; key "SIM_FRU_DATA". */
    sim_fru_data_list_t virtual_fru_data;
} fru_info_t;

/** The link of fru_module_list_t. */
typedef struct _fru_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _fru_module_list_s);
} fru_module_next_t;

/** Entry of the FRU list. The ids are what linking turns into the FRU's pointers. Owned by the model; valid until
 * libchs_release(). */
typedef struct _fru_module_list_s {
    fru_info_t fru_minfo; /**< The FRU; its address is the entry's. */
    /** I2C device id; negative: none. 0 when not given. Element I2CDEVID (decimal); key "I2CDEVID". */
    int32_t i2cdev_id;
    /** Extension I2C device id; -1: none, also when not given. Element I2CDEVEXTID (decimal); key "I2CDEVEXTID". */
    int32_t i2cdev_id_ext;
    /** Id of the parent FRU; 0xFFFFFFFF, written NULL: none. 0 when not given, which is an ordinary id. Element PARENT
     * (decimal or NULL); key "PARENT", text. */
    uint32_t parent_id;
    fru_module_next_t fru_next; /**< Link. */
} fru_module_list_t;

/** List of FRUs. */
typedef struct _fru_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _fru_module_list_s);
} fru_info_list_t;

/* ---- FRU models and chassis models ---- */

/** The link of ambient_temp_t. */
typedef struct _ambient_temp_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _ambient_temp_s);
} ambient_temp_next_t;

/** Row of a model's ambient-temperature table, and list entry: key "AMBIENT_TEMP_DATA", no element. Rows are not
 * sorted. Owned by its fru_model_info_t. */
typedef struct _ambient_temp_s {
    int32_t temperature;                   /**< Ambient temperature. Key "AMBIENT_TEMPERATURE". */
    uint32_t max_power;                    /**< Maximum power at it. Key "AMBIENT_FRU_POWER". */
    uint32_t mic_max_power;                /**< Second maximum-power figure at it. Key "AMBIENT_FRU_MIC_POWER". */
    uint32_t bandwidth;                    /**< Bandwidth at it. Key "AMBIENT_FRU_BANDWIDTH". */
    ambient_temp_next_t ambient_temp_next; /**< Link. */
} ambient_temp_t;

/** List of ambient-temperature rows. */
typedef struct _ambient_temp_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _ambient_temp_s);
} ambient_temp_list_t;

/** A FRU model or chassis model: element MODEL (within FRUMODEL, or at the root), key "MODEL" under "FRUMODEL" or
 * "CHSMODEL". Owned by the model; valid until libchs_release(). */
typedef struct _fru_model_info_s {
    uint32_t id;                 /**< Model id. Attribute "id" (decimal); key "id". */
    char name[128];              /**< Model name. Element NAME; key "NAME". */
    char desc[128];              /**< Description. Element DESC; key "DESC". */
    char part_number[128];       /**< Part number. Element PARTNO; key "PARTNO". */
    uint16_t asm_id;             /**< Assembly id. Element ASSEMBLYID (base prefix); key "ASSEMBLYID". */
    fru_type_t fru_type;         /**< Kind of FRU. Attribute "type" (name); key "Type", -1 also when missing. */
    fru_aflow_type_t aflow_type; /**< Air flow. Element AIRFLOWTYPE (name); key "AIRFLOWTYPE", -1 for "UNKNOWN". */
    fru_power_type_t power_type; /**< AC or DC. Element PEMTYPE (name); key "PEMTYPE". */
    char fru_desc[128];          /**< FRU description. Element FRUDESC; key "FRUDESC". */
    /** Ambient-temperature table, by `ambient_temp_next`. No element; key "AMBIENT_TEMP_DATA". */
    ambient_temp_list_t ambient_temp_info;
    int32_t power_rating; /**< Power rating. Element POWER_RATING (decimal); key "POWER_RATING". */
    int32_t peak_power;   /**< Peak power. Element PEAK_POWER (decimal); key "PEAK_POWER". */
    /** The power supply's input switch is active. Element PEM_INPSW_ACT (true, false); key "PEM_INPSW_ACT", text. */
    bool pem_inpsw_act;
    /** Environment-monitoring policy applies per FRU. Element FRUEMP (true, false); key "FRUEMP", text. */
    bool fru_level_empolicy;
    uint8_t nfans; /**< Number of fans. Element NFANS (decimal); key "NFANS". */
    /** Enhanced temperature thresholds apply. Element FRU_ENH_TEMPTHRESHOLD (true, false); key "FRU_ENH_TEMPTHRESHOLD",
     * text that begins with "true". */
    bool enh_temp_threshold;
    int32_t driverid; /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    /** Minimum fan speed in percent. Element MIN_FAN_SPEED_PERCENT (decimal); key "MIN_FAN_SPEED_PERCENT". */
    int32_t min_fan_speed;
    int32_t nfeeds; /**< Number of power feeds. No element; key "NFEEDS". */
} fru_model_info_t;

/** The link of frumodel_module_list_t. */
typedef struct _frumodel_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _frumodel_module_list_s);
} frumodel_module_next_t;

/** Entry of the FRU model list and of the chassis model list. Owned by the model; valid until libchs_release(). */
typedef struct _frumodel_module_list_s {
    fru_model_info_t frumodel_minfo;      /**< The model; its address is the entry's. */
    frumodel_module_next_t frumodel_next; /**< Link. */
} frumodel_module_list_t;

/** List of FRU models or of chassis models. */
typedef struct _frumodel_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _frumodel_module_list_s);
} frumodel_info_list_t;

/* ---- Devices that sit on a FRU ----
 *
 * A device is an element DEVICE whose attribute "type" names the kind and "ctrl" the controller, or a group of the key
 * "DEVICES" with the keys "Type" and "ctrl". Its list entry holds the record by pointer, owned and never null, with the
 * id of the FRU that holds the device; linking turns that id into the record's `fru_info`, never null in a model that
 * libchs_init() made available, except for a PIC. */

/** The link of ss2rpm_fan_info_t. */
typedef struct _ss2rpm_fan_info_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _ss2rpm_fan_info_s);
} ss2rpm_fan_info_next_t;

/** Row of a fan speed table, and list entry: element SS2RPM, key "SS2RPM". Rows are neither sorted nor checked. Owned
 * by its fan or power supply; valid until libchs_release(). */
typedef struct _ss2rpm_fan_info_s {
    uint32_t speed;                          /**< Speed setting. Element SPEED (decimal); key "SPEED". */
    uint32_t afi_speed;                      /**< Speed setting for AFI air flow. No element; key "AFISPEED". */
    uint32_t rpm;                            /**< Revolutions per minute. Element RPM (decimal); key "RPM". */
    uint32_t tolerance;                      /**< Tolerance of `rpm`. Element TOLERANCE (decimal); key "TOLERANCE". */
    uint32_t pwmval;                         /**< PWM value. Element PWMVAL (base prefix); key "PWMVAL". */
    uint32_t afi_pwmval;                     /**< PWM value for AFI air flow. No element; key "AFIPWMVAL". */
    ss2rpm_fan_info_next_t ss2rpm_info_next; /**< Link. */
} ss2rpm_fan_info_t;

/** List of fan speed rows. */
typedef struct _ss2rpm_fan_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _ss2rpm_fan_info_s);
} ss2rpm_fan_info_list_t;

/* ---- Fan trays ---- */

/** The fan modules: ROW(controller, module record, its fans' record) for each. A module's list `fan_info` is by
 * `fan_info_next`. */
#define DST_FAN_MODULES(ROW)                                                                                           \
    ROW(CTRL_TYPE_ADT7470, adt7470_module_info_t, adt7470_fan_info_t)                                                  \
    ROW(CTRL_TYPE_FANSYSPLD, pelian_fan_syspld_module_info_t, pelian_fan_syspld_info_t)                                \
    ROW(CTRL_TYPE_GFC0812, gfc0812_module_info_t, gfc0812_fan_info_t)                                                  \
    ROW(CTRL_TYPE_9HV0812, haskel_9hv0812_module_info_t, haskel_9hv0812_fan_info_t)

/** The module record that a tray begins, for the record that DST_FAN_MODULES has for its `ctrl_type`. */
#define DST_FAN_MODULE(module_record, tray) ((const module_record *)(const void *)(tray))

/** A fan tray: "FAN". It begins the fan module record that DST_FAN_MODULES has for its `ctrl_type`: a pointer to the
 * one is a pointer to the other. Owned by the model; valid until libchs_release(). */
typedef struct _fan_info_s {
    i2c_dev_info_t *i2cdev; /**< I2C device. No source fills it. Reference, not owned. */
    char name[128];         /**< Name. Element NAME; key "NAME". */
    uint32_t id;            /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;     /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    ctrl_type_t ctrl_type;  /**< Controller. Attribute "ctrl"; key "ctrl". */
    fru_info_t *fru_info;   /**< FRU that holds it. Set by linking. Reference, not owned. */
    uint8_t slot;           /**< Slot number. No source fills it. */
} fan_info_t;

/** The link of adt7470_fan_info_t. */
typedef struct _adt7470_fan_info_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _adt7470_fan_info_s);
} adt7470_fan_info_next_t;

/** A fan of an ADT7470 tray, and list entry: element FAN, key "FAN". Owned by its tray. */
typedef struct _adt7470_fan_info_s {
    char name[128];  /**< Name. Element NAME; key "NAME". */
    uint32_t fan_id; /**< Id. Attribute "id" (decimal); key "id". */
    /** Tachometer low byte register. Element TACH_LOW_BYTE_REG (base prefix); key "TACH_LOW_BYTE_REG". */
    uint32_t tach_low_byte_reg;
    /** Tachometer high byte register. Element TACH_HIGH_BYTE_REG (base prefix); key "TACH_HIGH_BYTE_REG". */
    uint32_t tach_high_byte_reg;
    /** PWM duty-cycle register. Element PWM_DUTY_CYCLE_REG (base prefix); key "PWM_DUTY_CYCLE_REG". */
    uint32_t pwm_duty_cycle_reg;
    uint32_t speed_reg;                    /**< Speed register. No element; key "SPEED_REG". */
    ss2rpm_fan_info_list_t ss2rpm;         /**< Speed table, by `ss2rpm_info_next`. Elements SS2RPM; key "SS2RPM". */
    adt7470_fan_info_next_t fan_info_next; /**< Link. */
} adt7470_fan_info_t;

/** List of the fans of an ADT7470 tray. */
typedef struct _adt7470_fan_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _adt7470_fan_info_s);
} adt7470_fan_info_list_t;

/** Fan module of CTRL_TYPE_ADT7470. Owned by the model; valid until libchs_release(). */
typedef struct _adt7470_module_info_s {
    fan_info_t fan_tray_info; /**< The tray; its address is the module's. */
    uint8_t nfans;            /**< Number of fans. As stated by element NFANS (decimal); counted with key "FAN". */
    adt7470_fan_info_list_t fan_info; /**< The fans, by `fan_info_next`. Elements FAN; key "FAN". */
} adt7470_module_info_t;

/** The link of gfc0812_fan_info_t. */
typedef struct _gfc0812_fan_info_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _gfc0812_fan_info_s);
} gfc0812_fan_info_next_t;

/** A fan of a GFC0812 tray, and list entry: element FAN, key "FAN". Owned by its tray. */
typedef struct _gfc0812_fan_info_s {
    char name[128];  /**< Name. Element NAME; key "NAME". */
    uint32_t fan_id; /**< Id. Attribute "id" (decimal); key "id". */
    /** Tachometer low byte register. Element TACH_LOW_BYTE_REG (base prefix); key "TACH_LOW_BYTE_REG". */
    uint32_t tach_low_byte_reg;
    uint32_t tach_high_byte_reg; /**< Tachometer high byte register. No source fills it. */
    /** PWM duty-cycle register. Element PWM_DUTY_CYCLE_REG (base prefix); key "PWM_DUTY_CYCLE_REG". */
    uint32_t pwm_duty_cycle_reg;
    /** Fan-select register. Element FAN_SELECT_REG (base prefix); key "FAN_SELECT_REG". */
    uint32_t ec_i2cs_fan_select;
    ss2rpm_fan_info_list_t ss2rpm;         /**< Speed table, by `ss2rpm_info_next`. Elements SS2RPM; key "SS2RPM". */
    gfc0812_fan_info_next_t fan_info_next; /**< Link. */
} gfc0812_fan_info_t;

/** List of the fans of a GFC0812 tray. */
typedef struct _gfc0812_fan_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _gfc0812_fan_info_s);
} gfc0812_fan_info_list_t;

/** Fan module of CTRL_TYPE_GFC0812. Owned by the model; valid until libchs_release(). */
typedef struct _gfc0812_module_info_s {
    fan_info_t fan_tray_info; /**< The tray; its address is the module's. */
    uint8_t nfans;            /**< Number of fans. As stated by element NFANS (decimal); counted with key "FAN". */
    gfc0812_fan_info_list_t fan_info; /**< The fans, by `fan_info_next`. Elements FAN; key "FAN". */
} gfc0812_module_info_t;

/** The link of haskel_9hv0812_fan_info_t. */
typedef struct _haskel_9hv0812_fan_info_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _haskel_9hv0812_fan_info_s);
} haskel_9hv0812_fan_info_next_t;

/** A fan of a 9HV0812 tray, and list entry: element FAN, key "FAN". Owned by its tray. */
typedef struct _haskel_9hv0812_fan_info_s {
    char name[128];  /**< Name. Element NAME; key "NAME". */
    uint32_t fan_id; /**< Id. Attribute "id" (decimal); key "id". */
    /** Tachometer low byte register. Element TACH_LOW_BYTE_REG (base prefix); key "TACH_LOW_BYTE_REG". */
    uint32_t tach_low_byte_reg;
    uint32_t tach_high_byte_reg; /**< Tachometer high byte register. No source fills it. */
    /** PWM duty-cycle register. Element PWM_DUTY_CYCLE_REG (base prefix); key "PWM_DUTY_CYCLE_REG". */
    uint32_t pwm_duty_cycle_reg;
    /** Fan-select register. Element FAN_SELECT_REG (base prefix); key "FAN_SELECT_REG". */
    uint32_t ec_i2cs_fan_select;
    ss2rpm_fan_info_list_t ss2rpm; /**< Speed table, by `ss2rpm_info_next`. Elements SS2RPM; key "SS2RPM". */
    haskel_9hv0812_fan_info_next_t fan_info_next; /**< Link. */
} haskel_9hv0812_fan_info_t;

/** List of the fans of a 9HV0812 tray. */
typedef struct _haskel_9hv0812_fan_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _haskel_9hv0812_fan_info_s);
} haskel_9hv0812_fan_info_list_t;

/** Fan module of CTRL_TYPE_9HV0812. Owned by the model; valid until libchs_release(). */
typedef struct _haskel_9hv0812_module_info_s {
    fan_info_t fan_tray_info; /**< The tray; its address is the module's. */
    uint8_t nfans;            /**< Number of fans. As stated by element NFANS (decimal); counted with key "FAN". */
    haskel_9hv0812_fan_info_list_t fan_info; /**< The fans, by `fan_info_next`. Elements FAN; key "FAN". */
} haskel_9hv0812_module_info_t;

/** The link of pelian_fan_syspld_info_t. */
typedef struct _pelian_fan_syspld_info_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _pelian_fan_syspld_info_s);
} pelian_fan_syspld_info_next_t;

/** A fan of a FANSYSPLD tray, and list entry: element FAN, key "FAN". Owned by its tray. */
typedef struct _pelian_fan_syspld_info_s {
    char name[128];  /**< Name. Element NAME; key "NAME". */
    uint32_t fan_id; /**< Id. Attribute "id" (decimal); key "id". */
    /** Fan control register in the system PLD. Element PEL_SYSPLD_FAN_CTRL_REG (base prefix); key
     * "PEL_SYSPLD_FAN_CTRL_REG". */
    uint32_t fan_ctrl_reg;
    /** Shift of the fan's bits in the control register. Element PEL_SYSPLD_FAN_CTRL_SHIFT_BITS (base prefix); key
     * "PEL_SYSPLD_FAN_CTRL_SHIFT_BITS". */
    uint32_t fan_ctrl_shift_bits;
    /** Fan speed register in the system PLD. Element PEL_SYSPLD_FAN_SPEED_REG (base prefix); key
     * "PEL_SYSPLD_FAN_SPEED_REG". */
    uint32_t fan_speed_reg;
    pelian_fan_syspld_info_next_t fan_info_next; /**< Link. */
} pelian_fan_syspld_info_t;

/** List of the fans of a FANSYSPLD tray. */
typedef struct _pelian_fan_syspld_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _pelian_fan_syspld_info_s);
} pelian_fan_syspld_info_list_t;

/** Fan module of CTRL_TYPE_FANSYSPLD. Owned by the model; valid until libchs_release(). */
typedef struct _pelian_fan_syspld_module_info_s {
    fan_info_t fan_tray_info; /**< The tray; its address is the module's. */
    uint8_t nfans;            /**< Number of fans. As stated by element NFANS (decimal); not counted with key "FAN". */
    pelian_fan_syspld_info_list_t fan_info; /**< The fans, by `fan_info_next`. Elements FAN; key "FAN". */
} pelian_fan_syspld_module_info_t;

/** List of fans whose type is not looked at: the entries are opaque. */
typedef struct _generic_fan_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _generic_fan_info_s);
} generic_fan_info_list_t;

/** Any fan module, for code that needs the tray and the number of fans only. */
typedef struct _generic_fan_module_info_s {
    fan_info_t fan_tray_info;         /**< The tray; its address is the module's. */
    uint8_t nfans;                    /**< Number of fans, as in the module. */
    generic_fan_info_list_t fan_info; /**< The fans. */
} generic_fan_module_info_t;

/** The link of fan_module_list_t. */
typedef struct _fan_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _fan_module_list_s);
} fan_module_next_t;

/** Entry of the fan list. Owned by the model; valid until libchs_release(). */
typedef struct _fan_module_list_s {
    fan_info_t *fan_minfo;      /**< The tray that begins a fan module record. Owned. */
    uint32_t fru_id;            /**< FRU that holds it. Element FRUID (decimal); key "FRUID". */
    fan_module_next_t fan_next; /**< Link. */
} fan_module_list_t;

/** List of fan trays. */
typedef struct _fan_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _fan_module_list_s);
} fan_info_list_t;

/* ---- Power supplies ---- */

/** A power supply: "PEM". Owned by the model; valid until libchs_release(). */
typedef struct _pem_info_s {
    i2c_dev_info_t *i2cdev;        /**< I2C device. No source fills it. Reference, not owned. */
    char name[128];                /**< Name. Element NAME; key "NAME". */
    uint32_t id;                   /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;            /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    ctrl_type_t ctrl_type;         /**< CTRL_TYPE_PSUEPM. Attribute "ctrl"; key "ctrl". */
    fru_info_t *fru_info;          /**< FRU that holds it. Set by linking. Reference, not owned. */
    uint8_t slot;                  /**< Slot number. No source fills it. */
    ss2rpm_fan_info_list_t ss2rpm; /**< Fan speed table, by `ss2rpm_info_next`. No element; key "SS2RPM". */
} pem_info_t;

/** The link of pem_module_list_t. */
typedef struct _pem_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _pem_module_list_s);
} pem_module_next_t;

/** Entry of the power-supply list. Owned by the model; valid until libchs_release(). */
typedef struct _pem_module_list_s {
    pem_info_t *pem_minfo;      /**< The power supply. Owned. */
    uint32_t fru_id;            /**< FRU that holds it. Element FRUID (decimal); key "FRUID". */
    pem_module_next_t pem_next; /**< Link. */
} pem_module_list_t;

/** List of power supplies. */
typedef struct _pem_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _pem_module_list_s);
} pem_info_list_t;

/* ---- Slot boards ---- */

/** A FPC board: "FPC". Owned by the model; valid until libchs_release(). */
typedef struct _fpc_info_s {
    i2c_dev_info_t *i2cdev; /**< I2C device. No source fills it. Reference, not owned. */
    char name[128];         /**< Name. Element NAME; key "NAME". */
    uint32_t id;            /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;     /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    ctrl_type_t ctrl_type;  /**< CTRL_TYPE_FPC. Attribute "ctrl"; key "ctrl". */
    fru_info_t *fru_info;   /**< FRU that holds it. Set by linking. Reference, not owned. */
    uint8_t slot;           /**< Slot number. No source fills it. */
} fpc_info_t;

/** The link of fpc_module_list_t. */
typedef struct _fpc_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _fpc_module_list_s);
} fpc_module_next_t;

/** Entry of the FPC list. Owned by the model; valid until libchs_release(). */
typedef struct _fpc_module_list_s {
    fpc_info_t *fpc_minfo;      /**< The board. Owned. */
    uint32_t fru_id;            /**< FRU that holds it. Element FRUID (decimal); key "FRUID". */
    fpc_module_next_t fpc_next; /**< Link. */
} fpc_module_list_t;

/** List of FPC boards. */
typedef struct _fpc_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _fpc_module_list_s);
} fpc_info_list_t;

/** A SIB board: "SIB". Owned by the model; valid until libchs_release(). */
typedef struct _sib_info_s {
    i2c_dev_info_t *i2cdev;   /**< I2C device. No source fills it. Reference, not owned. */
    char name[128];           /**< Name. Element NAME; key "NAME". */
    uint32_t id;              /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;       /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    ctrl_type_t ctrl_type;    /**< CTRL_TYPE_SIB. Attribute "ctrl"; key "ctrl". */
    fru_info_t *fru_info;     /**< FRU that holds it. Set by linking. Reference, not owned. */
    uint8_t slot;             /**< Slot number. No source fills it. */
    uint64_t pf_efuse_values; /**< E-fuse values. No source fills it. */
    uint8_t pf_vol_to_be_set; /**< Voltage to be set. No source fills it. */
} sib_info_t;

/** The link of sib_module_list_t. */
typedef struct _sib_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _sib_module_list_s);
} sib_module_next_t;

/** Entry of the SIB list. Owned by the model; valid until libchs_release(). */
typedef struct _sib_module_list_s {
    sib_info_t *sib_minfo;      /**< The board. Owned. */
    uint32_t fru_id;            /**< FRU that holds it. Element FRUID (decimal); key "FRUID". */
    sib_module_next_t sib_next; /**< Link. */
} sib_module_list_t;

/** List of SIB boards. */
typedef struct _sib_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _sib_module_list_s);
} sib_info_list_t;

/** A FPM board: "FPM". Owned by the model; valid until libchs_release(). */
typedef struct _fpm_info_s {
    i2c_dev_info_t *i2cdev; /**< I2C device. No source fills it. Reference, not owned. */
    char name[128];         /**< Name. Element NAME; key "NAME". */
    uint32_t id;            /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;     /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    ctrl_type_t ctrl_type;  /**< CTRL_TYPE_FPM. Attribute "ctrl"; key "ctrl". */
    fru_info_t *fru_info;   /**< FRU that holds it. Set by linking. Reference, not owned. */
    uint8_t slot;           /**< Slot number. No source fills it. */
    led_type_t led_type;    /**< Its LED. No source fills it. */
} fpm_info_t;

/** The link of fpm_module_list_t. */
typedef struct _fpm_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _fpm_module_list_s);
} fpm_module_next_t;

/** Entry of the FPM list. Owned by the model; valid until libchs_release(). */
typedef struct _fpm_module_list_s {
    fpm_info_t *fpm_minfo;      /**< The board. Owned. */
    uint32_t fru_id;            /**< FRU that holds it. Element FRUID (decimal); key "FRUID". */
    fpm_module_next_t fpm_next; /**< Link. */
} fpm_module_list_t;

/** List of FPM boards. */
typedef struct _fpm_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _fpm_module_list_s);
} fpm_info_list_t;

/** A FTC board: "FTC". Owned by the model; valid until libchs_release(). */
typedef struct _ftc_info_s {
    i2c_dev_info_t *i2cdev; /**< I2C device. No source fills it. Reference, not owned. */
    char name[128];         /**< Name. Element NAME; key "NAME". */
    uint32_t id;            /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;     /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    ctrl_type_t ctrl_type;  /**< CTRL_TYPE_FTC. Attribute "ctrl"; key "ctrl". */
    fru_info_t *fru_info;   /**< FRU that holds it. Set by linking. Reference, not owned. */
    uint8_t slot;           /**< Slot number. No source fills it. */
} ftc_info_t;

/** The link of ftc_module_list_t. */
typedef struct _ftc_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _ftc_module_list_s);
} ftc_module_next_t;

/** Entry of the FTC list. Owned by the model; valid until libchs_release(). */
typedef struct _ftc_module_list_s {
    ftc_info_t *ftc_minfo;      /**< The board. Owned. */
    uint32_t fru_id;            /**< FRU that holds it. Element FRUID (decimal); key "FRUID". */
    ftc_module_next_t ftc_next; /**< Link. */
} ftc_module_list_t;

/** List of FTC boards. */
typedef struct _ftc_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _ftc_module_list_s);
} ftc_info_list_t;

/** A CB board: "CB". Owned by the model; valid until libchs_release(). */
typedef struct _cb_info_s {
    i2c_dev_info_t *i2cdev; /**< I2C device. No source fills it. Reference, not owned. */
    char name[128];         /**< Name. Element NAME; key "NAME". */
    uint32_t id;            /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;     /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    ctrl_type_t ctrl_type;  /**< CTRL_TYPE_CB. Attribute "ctrl"; key "ctrl". */
    fru_info_t *fru_info;   /**< FRU that holds it. Set by linking. Reference, not owned. */
    uint8_t slot;           /**< Slot number. No source fills it. */
    uint32_t ntsensors;     /**< Number of temperature sensors. No element; key "NTSENSORS". */
    uint32_t nvsensors;     /**< Number of voltage sensors. No element; key "NVSENSORS". */
} cb_info_t;

/** The link of cb_module_list_t. */
typedef struct _cb_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _cb_module_list_s);
} cb_module_next_t;

/** Entry of the CB list. Owned by the model; valid until libchs_release(). */
typedef struct _cb_module_list_s {
    cb_info_t *cb_minfo;      /**< The board. Owned. */
    uint32_t fru_id;          /**< FRU that holds it. Element FRUID (decimal); key "FRUID". */
    cb_module_next_t cb_next; /**< Link. */
} cb_module_list_t;

/** List of CB boards. */
typedef struct _cb_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _cb_module_list_s);
} cb_info_list_t;

/** A TIB board: "TIB". Only the configuration-tree form knows it. Owned by the model; valid until libchs_release(). */
typedef struct _tib_info_s {
    i2c_dev_info_t *i2cdev; /**< I2C device. No source fills it. Reference, not owned. */
    char name[128];         /**< Name. Key "NAME". */
    uint32_t id;            /**< Id. Key "id". */
    uint32_t driver_id;     /**< Driver. Key "DRIVERID". */
    ctrl_type_t ctrl_type;  /**< CTRL_TYPE_TIB. Key "ctrl". */
    fru_info_t *fru_info;   /**< FRU that holds it. Set by linking. Reference, not owned. */
    uint8_t slot;           /**< Slot number. No source fills it. */
} tib_info_t;

/** The link of tib_module_list_t. */
typedef struct _tib_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _tib_module_list_s);
} tib_module_next_t;

/** Entry of the TIB list. Owned by the model; valid until libchs_release(). */
typedef struct _tib_module_list_s {
    tib_info_t *tib_minfo;      /**< The board. Owned. */
    uint32_t fru_id;            /**< FRU that holds it. Key "FRUID". */
    tib_module_next_t tib_next; /**< Link. */
} tib_module_list_t;

/** List of TIB boards. */
typedef struct _tib_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _tib_module_list_s);
} tib_info_list_t;

/* ---- Temperature sensors ---- */

/** The link of limit_t. */
typedef struct _limit_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _limit_s);
} limit_next_t;

/** Temperature limit that leads to a fan step, and list entry: element LIMIT, key "LIMIT". Owned by its threshold. */
typedef struct _limit_s {
    uint32_t id;             /**< Limit id. Attribute "id" (decimal); key "id". */
    uint32_t temp;           /**< Temperature of the limit. Element TEMP (decimal); key "TEMP". */
    int32_t fan_step_id;     /**< Fan step; -1 when not given. Element FANSTEPID (decimal); key "FANSTEPID". */
    limit_next_t limit_next; /**< Link. */
} limit_t;

/** List of limits. */
typedef struct _limit_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _limit_s);
} limit_list_t;

/** The link of alarm_info_t. */
typedef struct _alarm_info_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _alarm_info_s);
} alarm_info_next_t;

/** Alarm of a threshold, and list entry: element ALARM, key "ALARM". Owned by its threshold. */
typedef struct _alarm_info_s {
    uint32_t id;                  /**< Alarm id. Attribute "id" (decimal); key "id". */
    uint32_t alarm;               /**< Value that raises it. Text of the element (decimal); key "LIMIT". */
    alarm_type_t type;            /**< Alarm raised. Attribute "type" (name); key "Type", -1 also when missing. */
    alarm_info_next_t alarm_next; /**< Link. */
} alarm_info_t;

/** List of alarms. */
typedef struct _alarm_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _alarm_info_s);
} alarm_list_t;

/** The link of tmpsnr_threshold_t. */
typedef struct _tmpsnr_threshold_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _tmpsnr_threshold_s);
} tmpsnr_threshold_next_t;

/** Thresholds of a sensor for one air-flow direction, and list entry: element THRESHOLD, key "THRESHOLD". Owned by its
 * sensor. */
typedef struct _tmpsnr_threshold_s {
    char name[128];                         /**< Name. Element NAME; key "NAME". */
    uint32_t id;                            /**< Threshold id. Attribute "id" (decimal); key "id". */
    uint32_t fire;                          /**< Fire value. Element FIRE (decimal); key "FIRE". */
    fru_aflow_type_t aflow_type;            /**< Air flow. Attribute "type" (name); key "Type", a number. */
    alarm_list_t alarm_list;                /**< Alarms, by `alarm_next`. Elements ALARM; key "ALARM". */
    limit_list_t limit_list;                /**< Fan-step limits, by `limit_next`. Elements LIMIT; key "LIMIT". */
    tmpsnr_threshold_next_t threshold_next; /**< Link. */
} tmpsnr_threshold_t;

/** List of thresholds. */
typedef struct _threshold_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _tmpsnr_threshold_s);
} threshold_list_t;

/** A temperature sensor: "TMPSNR". Which keys are read depends on the chip: "REG_OFFSET" for TMP432, TMP75, HMCTEMP,
 * KXTEMP and WQTEMP only, "CFPGAID" for TMP432 and TMP75 only. Owned by the model; valid until libchs_release(). */
typedef struct _tmpsnr_info_s {
    fru_info_t *fru_info;  /**< FRU that it sits on. Set by linking. Reference, not owned. */
    uint32_t id;           /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;    /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    ctrl_type_t ctrl_type; /**< Sensor chip. Attribute "ctrl"; key "ctrl". */
    uint8_t reg_offset;    /**< Register of the reading. Element REG_OFFSET (base prefix); key "REG_OFFSET". */
    uint8_t cfpga_id;      /**< FPGA id. Element CFPGAID (base prefix); key "CFPGAID". */
    uint8_t mux_channel;   /**< Multiplexer channel. Element MUX_CHANNEL (base prefix); no key. */
    uint8_t tmp_index;     /**< Temperature index. Element TMP_INDEX (base prefix); no key. */
    char fru_type[128];    /**< Kind of FRU, free text. Element FRUTYPE; no key. */
    uint8_t mux;           /**< Multiplexer. Element MUX (base prefix); no key. */
    threshold_list_t threshold_list; /**< Thresholds, by `threshold_next`. Elements THRESHOLD; key "THRESHOLD". */
} tmpsnr_info_t;

/** The link of tmpsnr_module_list_t. */
typedef struct _tmpsnr_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _tmpsnr_module_list_s);
} tmpsnr_module_next_t;

/** Entry of the temperature sensor list. Owned by the model; valid until libchs_release(). */
typedef struct _tmpsnr_module_list_s {
    tmpsnr_info_t *ts_minfo;      /**< The sensor. Owned. */
    uint32_t fru_id;              /**< FRU that it sits on. Element FRUID (decimal); key "FRUID". */
    tmpsnr_module_next_t ts_next; /**< Link. */
} tmpsnr_module_list_t;

/** List of temperature sensors. */
typedef struct _tmpsnr_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _tmpsnr_module_list_s);
} tmpsnr_info_list_t;

/* ---- Voltage sensors ---- */

/** A voltage sensor: "VOLTSNR". Which keys are read depends on the chip: "CONVERSION_FACTOR" and "CFPGAID" for MAX207XX
 * and ADS7830 only, "MUX_ADDR" and "MUX_SEGMENT" for MAX207XX only, "REG_OFFSET" not for MAX207XX. Owned by the model;
 * valid until libchs_release(). */
typedef struct _voltsnr_info_s {
    fru_info_t *fru_info;  /**< FRU that it sits on. Set by linking. Reference, not owned. */
    uint32_t id;           /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;    /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    ctrl_type_t ctrl_type; /**< Monitor chip. Attribute "ctrl"; key "ctrl". */
    uint32_t reg_offset;   /**< Register of the reading. Element REG_OFFSET (base prefix); key "REG_OFFSET". */
    char name[128];        /**< Name. Element NAME; key "NAME". */
    uint32_t margin;       /**< Margin. Element MARGIN (decimal); key "MARGIN". */
    uint32_t def_voltage;  /**< Default voltage. Element DEF_VOLTAGE (decimal); key "DEF_VOLTAGE". */
    /** Conversion factor. Element CONVERSION_FACTOR (decimal integer, a fraction is dropped); key "CONVERSION_FACTOR",
     * with its fraction. */
    double conversion_factor;
    uint32_t cfpga_id;    /**< FPGA id. Element CFPGAID (base prefix); key "CFPGAID". */
    uint32_t mux_addr;    /**< Multiplexer address. Element MUX_ADDR (base prefix); key "MUX_ADDR". */
    uint32_t mux_segment; /**< Multiplexer segment. Element MUX_SEGMENT (base prefix); key "MUX_SEGMENT". */
} voltsnr_info_t;

/** The link of voltsnr_module_list_t. */
typedef struct _voltsnr_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _voltsnr_module_list_s);
} voltsnr_module_next_t;

/** Entry of the voltage sensor list. Owned by the model; valid until libchs_release(). */
typedef struct _voltsnr_module_list_s {
    voltsnr_info_t *vs_minfo;      /**< The sensor. Owned. */
    uint32_t fru_id;               /**< FRU that it sits on. Element FRUID (decimal); key "FRUID". */
    voltsnr_module_next_t vs_next; /**< Link. */
} voltsnr_module_list_t;

/** List of voltage sensors. */
typedef struct _voltsnr_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _voltsnr_module_list_s);
} voltsnr_info_list_t;

/* ---- LEDs, LCDs and buttons ---- */

/** A LED: "LED". Owned by the model; valid until libchs_release(). */
typedef struct _led_info_s {
    fru_info_t *fru_info;  /**< FRU that it sits on. Set by linking. Reference, not owned. */
    char name[128];        /**< Name. Element NAME; key "NAME". */
    uint32_t id;           /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;    /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    ctrl_type_t ctrl_type; /**< Controller. Attribute "ctrl"; key "ctrl". */
    /** What it shows. Element LEDTYPE (name, 0 when unknown); key "LEDTYPE", -1 also when missing. */
    led_type_t led_type;
} led_info_t;

/** The link of ledlcd_module_list_t. */
typedef struct _ledlcd_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _ledlcd_module_list_s);
} ledlcd_module_next_t;

/** Entry of the LED list. Owned by the model; valid until libchs_release(). */
typedef struct _ledlcd_module_list_s {
    led_info_t *ll_minfo;         /**< The LED. Owned. */
    uint32_t fru_id;              /**< FRU that it sits on. Element FRUID (decimal); key "FRUID". */
    ledlcd_module_next_t ll_next; /**< Link. */
} ledlcd_module_list_t;

/** List of LEDs; LCDs have one of their own. */
typedef struct _ledlcd_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _ledlcd_module_list_s);
} ledlcd_info_list_t;

/** A LCD: "LCD". Only the XML form knows it. Owned by the model; valid until libchs_release(). */
typedef struct _lcd_info_s {
    fru_info_t *fru_info;  /**< FRU that it sits on. Set by linking. Reference, not owned. */
    char name[128];        /**< Name. Element NAME. */
    uint32_t id;           /**< Id. Attribute "id" (decimal). */
    uint32_t driver_id;    /**< Driver. Element DRIVERID (decimal). */
    ctrl_type_t ctrl_type; /**< CTRL_TYPE_GENERICLCD. Attribute "ctrl". */
    lcd_type_t lcd_type;   /**< Kind. Element LCDTYPE (name, 0 when unknown). */
} lcd_info_t;

/** The link of lcd_module_list_t. */
typedef struct _lcd_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _lcd_module_list_s);
} lcd_module_next_t;

/** Entry of the LCD list. Owned by the model; valid until libchs_release(). */
typedef struct _lcd_module_list_s {
    lcd_info_t *lcd_minfo;      /**< The LCD. Owned. */
    uint32_t fru_id;            /**< FRU that it sits on. Element FRUID (decimal). */
    lcd_module_next_t lcd_next; /**< Link. */
} lcd_module_list_t;

/** List of LCDs. */
typedef struct _lcd_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _lcd_module_list_s);
} lcd_info_list_t;

/** A button: "BTN". Owned by the model; valid until libchs_release(). */
typedef struct _btn_info_s {
    fru_info_t *fru_info;  /**< FRU that it sits on. Set by linking. Reference, not owned. */
    char name[128];        /**< Name. Element NAME; key "NAME". */
    uint32_t id;           /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;    /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    ctrl_type_t ctrl_type; /**< CTRL_TYPE_QVLBTN. Attribute "ctrl"; key "ctrl". */
    /** What it does. Element BTNTYPE (name, 0 when unknown); key "BTNTYPE", -1 also when missing. */
    btn_type_t button_type;
} btn_info_t;

/** The link of button_module_list_t. */
typedef struct _button_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _button_module_list_s);
} button_module_next_t;

/** Entry of the button list. Owned by the model; valid until libchs_release(). */
typedef struct _button_module_list_s {
    btn_info_t *btn_minfo;         /**< The button. Owned. */
    uint32_t fru_id;               /**< FRU that it sits on. Element FRUID (decimal); key "FRUID". */
    button_module_next_t btn_next; /**< Link. */
} button_module_list_t;

/** List of buttons. */
typedef struct _button_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _button_module_list_s);
} button_info_list_t;

/* ---- PICs ---- */

/** A PIC: "PIC". Owned by the model; valid until libchs_release(). */
typedef struct _pic_info_s {
    char name[128]; /**< Name. Element NAME; key "NAME". */
    /** FRU that holds it, or null: a PIC may lack its FRU. Set by linking. Reference, not owned. */
    fru_info_t *fru_info;
    uint32_t id;           /**< Id. Attribute "id" (decimal); key "id". */
    uint32_t driver_id;    /**< Driver. Element DRIVERID (decimal); key "DRIVERID". */
    uint32_t capablility;  /**< Capability value. Element CAPABILITY (decimal); key "CAPABILITY". */
    ctrl_type_t ctrl_type; /**< CTRL_TYPE_PIC. Attribute "ctrl"; key "ctrl". */
    uint8_t pic_i2cid;     /**< I2C id. Element PICI2CID (base prefix); key "PICI2CID". */
} pic_info_t;

/** The link of pic_module_list_t. */
typedef struct _pic_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _pic_module_list_s);
} pic_module_next_t;

/** Entry of the PIC list. Owned by the model; valid until libchs_release(). */
typedef struct _pic_module_list_s {
    pic_info_t *pic_minfo;      /**< The PIC. Owned. */
    uint32_t fru_id;            /**< FRU that holds it. Element FRUID (decimal); key "FRUID". */
    pic_module_next_t pic_next; /**< Link. */
} pic_module_list_t;

/** List of PICs. */
typedef struct _pic_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _pic_module_list_s);
} pic_info_list_t;

/* ---- Switching ASICs and optics: only the XML form knows them ---- */

/** The link of bcm_port_info_t. */
typedef struct _bcm_port_info_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _bcm_port_info_s);
} bcm_port_info_next_t;

/** Front-panel port of a switching chip, and list entry: element PORT in CHIPBCM. Owned by its ASIC; valid until
 * libchs_release(). */
typedef struct _bcm_port_info_s {
    uint32_t id;                         /**< Port id. Attribute "id" (decimal). */
    uint32_t pic_i2cid;                  /**< I2C id of the PIC. Element PICI2CID (base prefix). */
    uint32_t fp_port;                    /**< Front-panel port number. Element FRONTPANELPORT (decimal). */
    uint32_t warp_core;                  /**< Warp core number. Element WARPCORE (decimal). */
    uint32_t bw_in_gbps;                 /**< Bandwidth in Gbit/s. Element BANDWIDTHINGBPS (decimal). */
    uint32_t phy_addr;                   /**< PHY address. Element PHYADDR (decimal). */
    uint32_t rx_lane_map;                /**< Receive lane map. Element RXLANEMAP (base prefix). */
    uint32_t tx_lane_map;                /**< Transmit lane map. Element TXLANEMAP (base prefix). */
    uint32_t rx_polarity;                /**< Receive polarity flip. Element PHYRXPOLARITYFLIP (decimal). */
    uint32_t tx_polarity;                /**< Transmit polarity flip. Element PHYTXPOLARITYFLIP (decimal). */
    uint32_t port_phy_id1;               /**< PHY id of the port. Element PORTPHYID1 (base prefix). */
    uint32_t link_scan_mode;             /**< Link scan mode. Element LINKSCANMODE (decimal). */
    uint32_t optics_preemph;             /**< Pre-emphasis for optics. Element OPTICSPREEMPH (decimal). */
    uint32_t optics_driver;              /**< Driver setting for optics. Element OPTICSDRIVER (decimal). */
    uint32_t optics_predriver;           /**< Pre-driver setting for optics. Element OPTICSPREDRIVER (decimal). */
    uint32_t dac_preemph;                /**< Pre-emphasis for DAC. Element DACPREEMPH (decimal). */
    uint32_t dac_driver;                 /**< Driver setting for DAC. Element DACDRIVER (decimal). */
    uint32_t dac_predriver;              /**< Pre-driver setting for DAC. Element DACPREDRIVER (decimal). */
    bcm_port_info_next_t port_info_next; /**< Link. */
} bcm_port_info_t;

/** List of ports. */
typedef struct _port_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _bcm_port_info_s);
} port_info_list_t;

/** Settings of a BCM switching chip: element CHIPBCM. Embedded in asic_info_t. */
typedef struct _bcm_chip_info_s {
    uint32_t maxlanes;          /**< Maximum number of lanes. Element MAXLANES (decimal). */
    uint32_t max_uft_entries;   /**< Maximum number of UFT entries. Element MAXUFTENTRIES (decimal). */
    uint32_t max_fp_slices;     /**< Maximum number of FP slices. Element MAXFPSLICES (decimal). */
    uint32_t system_preemph;    /**< System pre-emphasis. Element SYSTEMPREEMPH (decimal). */
    uint32_t system_driver;     /**< System driver setting. Element SYSTEMDRIVER (decimal). */
    uint32_t system_predriver;  /**< System pre-driver setting. Element SYSTEMPREDRIVER (decimal). */
    uint32_t led_program;       /**< LED program. Element LEDPROGRAM (decimal). */
    uint32_t led_program_len;   /**< Length of the LED program. Element LEDPROGRAMLEN (decimal). */
    port_info_list_t port_info; /**< Ports, by `port_info_next`. Elements PORT. */
} bcm_chip_info_t;

/** A switching ASIC: element ASIC. Owned by the model; valid until libchs_release(). */
typedef struct _asic_info_s {
    char name[128];                /**< Name. Element NAME. */
    char vendor[128];              /**< Vendor. Element VENDOR. */
    char chipid[128];              /**< Chip identification, text. Element CHIPID. */
    char location[128];            /**< Location. Element LOCATION. */
    uint32_t id;                   /**< Id. Attribute "id" (decimal). */
    uint32_t base_addr;            /**< Base address. Element BASEADDR (base prefix). */
    uint32_t driver_id;            /**< Driver. Element DRIVERID (decimal). */
    chip_type_t chip_type;         /**< Chip. Element CHIPTYPE (name, 0 when unknown). */
    bcm_chip_info_t bcm_chip_info; /**< Chip settings. Element CHIPBCM. */
} asic_info_t;

/** The link of asic_module_list_t. */
typedef struct _asic_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _asic_module_list_s);
} asic_module_next_t;

/** Entry of the ASIC list. Owned by the model; valid until libchs_release(). */
typedef struct _asic_module_list_s {
    asic_info_t asic_minfo;       /**< The ASIC; its address is the entry's. */
    asic_module_next_t asic_next; /**< Link. */
} asic_module_list_t;

/** List of ASICs. */
typedef struct _asic_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _asic_module_list_s);
} asic_info_list_t;

/** LED bit masks of a port's CPLD. Embedded in scpld_info_t. */
typedef struct _scpld_bit_mask_info_s {
    uint8_t green_bit_mask;       /**< Green. Element GREENBITMASK in LEDREG (base prefix). */
    uint8_t green_blink_bit_mask; /**< Green, blinking. Element GREENBLINKBITMASK in LEDBLINKREG (base prefix). */
    uint8_t amber_bit_mask;       /**< Amber. Element AMBERBITMASK in LEDREG (base prefix). */
    uint8_t amber_blink_bit_mask; /**< Amber, blinking. Element AMBERBLINKBITMASK in LEDBLINKREG (base prefix). */
} scpld_bit_mask_info_t;

/** The CPLD that serves an optical port: element SCPLD. Embedded in optics_info_t. */
typedef struct _scpld_info_s {
    /** Register offsets by kind of register. SCPLD_REG_TYPE_STS_LED: element OFFSET in LEDREG (base prefix);
     * SCPLD_REG_TYPE_BLINK_STS_LED: element OFFSET in LEDBLINKREG (base prefix). No source fills the others. */
    uint32_t offset[SCPLD_REG_TYPE_MAX];
    uint8_t scpld_id;               /**< CPLD id. Element SCPLDID (base prefix). */
    uint8_t scpld_offset;           /**< CPLD offset. Element OFFSET (base prefix). */
    uint8_t sfp_reg;                /**< SFP register. Element SFPREG (base prefix). */
    scpld_type_t scpld_type;        /**< Variant. Element SCPLDTYPE (name, 0 when unknown). */
    scpld_bit_mask_info_t bit_mask; /**< LED bit masks. Elements LEDREG and LEDBLINKREG. */
} scpld_info_t;

/** The PHY of an optical port: element PHY. Embedded in optics_info_t. */
typedef struct _phy_info_s {
    uint32_t phy_id;     /**< PHY id. Element PHYID (base prefix). */
    uint32_t phy_i2cid;  /**< I2C id of the PHY. Element I2CID (decimal). */
    phy_type_t phy_type; /**< Kind. Element PHYTYPE (name, 0 when unknown). */
} phy_info_t;

/** An optical port: element PORT in the section "optics". Owned by the model; valid until libchs_release(). */
typedef struct _optics_info_s {
    uint32_t port_id;        /**< Port id. Attribute "id" (decimal). */
    uint32_t pic_id;         /**< PIC slot. Element PICSLOT (decimal). */
    uint32_t op_i2cid;       /**< I2C id of the transceiver. Element I2CID (decimal). */
    uint32_t fpport;         /**< Front-panel port number. Element FPPORT (decimal). */
    uint32_t chip_id;        /**< Chip id, a number. Element CHIPID (decimal). */
    uint32_t driver_id;      /**< Driver. Element DRIVERID (decimal). */
    uint32_t capabilities;   /**< Capability value. Element CAPABILITY (base prefix). */
    char location[128];      /**< Location. Element LOCATION. */
    xcvr_type_t port_type;   /**< Transceiver. Element PORTTYPE (name, 0 when unknown). */
    scpld_info_t scpld_info; /**< CPLD. Element SCPLD. */
    phy_info_t phy_info;     /**< PHY. Element PHY. */
} optics_info_t;

/** The link of optics_module_list_t. */
typedef struct _optics_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _optics_module_list_s);
} optics_module_next_t;

/** Entry of the optics list. Owned by the model; valid until libchs_release(). */
typedef struct _optics_module_list_s {
    optics_info_t optics_minfo;       /**< The port; its address is the entry's. */
    optics_module_next_t optics_next; /**< Link. */
} optics_module_list_t;

/** List of optical ports. */
typedef struct _optics_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _optics_module_list_s);
} optics_info_list_t;

/* ---- Identification EEPROMs (EPM): the host supplies them through `epm_null_ops` ---- */

/** Image of an identification EEPROM: 117 bytes, stored as the host delivers them. Multi-byte numbers have their most
 * significant byte first (15_8, then 7_0); strings need not be NUL-terminated. Embedded in cepm_data_t. */
typedef struct _corvane_epm_s {
    uint8_t jedec_15_8;              /**< JEDEC manufacturer code, high byte. */
    uint8_t jedec_7_0;               /**< JEDEC manufacturer code, low byte. */
    uint8_t ideeprom_version;        /**< Version of the format. */
    uint8_t bitfield;                /**< Flag bits. */
    uint8_t assembly_id_15_8;        /**< Assembly id, high byte. */
    uint8_t assembly_id_7_0;         /**< Assembly id, low byte. */
    uint8_t major_version;           /**< Assembly major version. */
    uint8_t minor_version;           /**< Assembly minor version. */
    uint8_t version_string[12];      /**< Version text. */
    uint8_t partnumber_string[12];   /**< Part number text. */
    uint8_t serialnumber_string[12]; /**< Serial number text. */
    uint8_t assembly_flags;          /**< Assembly flags. */
    uint8_t manufacture_day;         /**< Day of manufacture. */
    uint8_t manufacture_month;       /**< Month of manufacture. */
    uint8_t manufacture_year_15_8;   /**< Year of manufacture, high byte. */
    uint8_t manufacture_year_7_0;    /**< Year of manufacture, low byte. */
    uint8_t reserved_2;              /**< Reserved. */
    uint8_t reserved_3;              /**< Reserved. */
    uint8_t customer_id;             /**< Customer. */
    uint8_t board_info[16];          /**< Board information. */
    uint8_t msi_format;              /**< MSI format. */
    uint8_t clei_code[10];           /**< CLEI code text. */
    uint8_t model_number[23];        /**< Model number text. */
    uint8_t model_major_rev;         /**< Model major revision. */
    uint8_t model_minor_rev[2];      /**< Model minor revision. */
    uint8_t deviations[10];          /**< Deviations. */
    uint8_t msi_checksum;            /**< MSI checksum. */
    uint8_t serial_no;               /**< Serial number byte. */
} corvane_epm_t;

/** An EPM record. Both members are written by the host. Owned by the model; valid until libchs_release(), or until
 * libchs_chassis_epm_data_init() fills the list anew. */
typedef struct _cepm_data_s {
    cepm_type_t cepm_type;   /**< Which board's EEPROM it is. */
    corvane_epm_t cepm_data; /**< The image. */
} cepm_data_t;

/** The link of cepm_module_list_t. */
typedef struct _cepm_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _cepm_module_list_s);
} cepm_module_next_t;

/** Entry of the EPM list. Owned by the model; valid as long as its record. */
typedef struct _cepm_module_list_s {
    cepm_data_t cepm_minfo;       /**< The record; its address is the entry's. */
    cepm_module_next_t cepm_next; /**< Link. */
} cepm_module_list_t;

/** List of EPM records, at most one a board, the main board's first. */
typedef struct _cepm_data_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _cepm_module_list_s);
} cepm_data_list_t;

/* ---- Resiliency: only the configuration-tree form carries it, under the key "RESILMODEL" ---- */

/** Error source of a module. Embedded in resil_error_list_t. */
typedef struct _resil_error_info_s {
    uint8_t offset;      /**< Register offset. Key "OFFSET". */
    uint8_t channel;     /**< Channel number. Key "CHANNEL". */
    uint32_t threshold;  /**< Threshold. Key "THRESHOLD". */
    uint32_t limit;      /**< Limit. Key "LIMIT". */
    uint8_t persistence; /**< Persistence. Key "PERSIST". */
    char desc[64];       /**< Description. Key "DESC". */
} resil_error_info_t;

/** The link of resil_error_list_t. */
typedef struct _resil_error_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _resil_error_list_s);
} resil_error_next_t;

/** Entry of a module's list of error sources: key "ERRORS". Owned by its module. */
typedef struct _resil_error_list_s {
    resil_error_info_t resil_einfo;      /**< The error source. */
    resil_error_next_t resil_error_next; /**< Link. */
} resil_error_list_t;

/** List of error sources. */
typedef struct _resil_error_info_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _resil_error_list_s);
} resil_error_info_list_t;

/** Hardware module that can report errors. Embedded in resil_module_list_t. */
typedef struct _resil_module_info_s {
    char mname[64];   /**< Module name. Key "MNAME". */
    uint32_t key;     /**< The module's key. Key "KEY". */
    uint32_t nerrors; /**< Number of error sources as stated, not counted. Key "NERRORS". */
} resil_module_info_t;

/** The link of resil_module_list_t. */
typedef struct _resil_module_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _resil_module_list_s);
} resil_module_next_t;

/** Entry of a FRU model's list of modules: key "MODULE". Owned by its resil_fru_list_t. */
typedef struct _resil_module_list_s {
    resil_module_info_t resil_minfo;       /**< The module. */
    resil_error_info_list_t resil_errors;  /**< Its error sources, by `resil_error_next`. Key "ERRORS". */
    resil_module_next_t resil_module_next; /**< Link. */
} resil_module_list_t;

/** List of modules. */
typedef struct _resil_fru_module_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _resil_module_list_s);
} resil_fru_module_list_t;

/** FRU model that resiliency data is about. Embedded in resil_fru_list_t. */
typedef struct _resil_fru_info_s {
    fru_type_t type;   /**< Kind of FRU. Key "Type", -1 also when missing. */
    uint32_t id;       /**< Assembly id. Key "ASSEMBLYID". */
    uint32_t nmodules; /**< Number of modules as stated, not counted. Key "NMODULES". */
} resil_fru_info_t;

/** The link of resil_fru_list_t. */
typedef struct _resil_fru_next_s {
    DST_TAILQ_LINK_MEMBERS(struct _resil_fru_list_s);
} resil_fru_next_t;

/** Entry of the resiliency list. Owned by the model; valid until libchs_release(). */
typedef struct _resil_fru_list_s {
    resil_fru_info_t resil_finfo;          /**< The FRU model. */
    resil_fru_module_list_t resil_modules; /**< Its modules, by `resil_module_next`. Key "MODULE". */
    resil_fru_next_t resil_fru_next;       /**< Link. */
} resil_fru_list_t;

/** List of resiliency entries. */
typedef struct _resil_list_s {
    DST_TAILQ_HEAD_MEMBERS(struct _resil_fru_list_s);
} resil_list_t;

/* ---- The model ---- */

/** The chassis block, with the I2C devices beside it. Embedded in libdst_chs_info_t. */
typedef struct _libdst_chs_cinfo_s {
    chassis_info_t chs_info;             /**< The chassis-wide numbers. */
    i2cdev_info_list_t i2cdev_info_list; /**< I2C devices, by `i2cdev_info_next`. */
} libdst_chs_cinfo_t;

/** The model: the one description of the chassis. Each list keeps the order of its source. A pointer to it is a pointer
 * to its chassis_info_t. */
typedef struct _libdst_chs_info_s {
    libdst_chs_cinfo_t chs_cinfo;       /**< The chassis block and the I2C devices. */
    fan_info_list_t fan_info;           /**< Fan trays, by `fan_next`. */
    pem_info_list_t pem_info;           /**< Power supplies, by `pem_next`. */
    fpc_info_list_t fpc_info;           /**< FPC boards, by `fpc_next`. */
    sib_info_list_t sib_info;           /**< SIB boards, by `sib_next`. */
    fpm_info_list_t fpm_info;           /**< FPM boards, by `fpm_next`. */
    ftc_info_list_t ftc_info;           /**< FTC boards, by `ftc_next`. */
    cb_info_list_t cb_info;             /**< CB boards, by `cb_next`. */
    tmpsnr_info_list_t ts_info;         /**< Temperature sensors, by `ts_next`. */
    voltsnr_info_list_t vs_info;        /**< Voltage sensors, by `vs_next`. */
    ledlcd_info_list_t ll_info;         /**< LEDs, by `ll_next`. */
    lcd_info_list_t lcd_info;           /**< LCDs, by `lcd_next`. XML form only. */
    button_info_list_t btn_info;        /**< Buttons, by `btn_next`. */
    pic_info_list_t pic_info;           /**< PICs, by `pic_next`. */
    fru_info_list_t fru_info;           /**< FRUs, by `fru_next`. */
    asic_info_list_t asic_info;         /**< Switching ASICs, by `asic_next`. XML form only. */
    optics_info_list_t optics_info;     /**< Optical ports, by `optics_next`. XML form only. */
    frumodel_info_list_t frumodel_info; /**< FRU models, by `frumodel_next`. */
    frumodel_info_list_t chsmodel_info; /**< Chassis models, by `frumodel_next`. */
    cepm_data_list_t cepm_info;         /**< EPM records from the host, by `cepm_next`. */
    resil_list_t resil_info;            /**< Resiliency data, by `resil_fru_next`. Configuration-tree form only. */
    tib_info_list_t tib_info;           /**< TIB boards, by `tib_next`. Configuration-tree form only. */
} libdst_chs_info_t;

/** The one model. All zero before libchs_init(), after a failed read and after libchs_release(). Callers only read. */
extern DST_API libdst_chs_info_t chs_info;

/** What queries read: `&chs_info` once libchs_init() has read the description, null before, when reading failed and
 * after libchs_release(). */
extern DST_API libdst_chs_info_t *dst_chs_info;

/** The host's access to identification EEPROMs. Either function may be null; both run on the thread that calls
 * libchs_init() or libchs_chassis_epm_data_init(), once the model is loaded: they may ask every query, and find the EPM
 * records of the boards before. They may not call libchs_init(), libchs_release() or libchs_chassis_epm_data_init(),
 * and must return: no exception, no longjmp(). */
typedef struct _epm_data_init_ops_s {
    /** Whether that board's EEPROM is present. Null: none is. */
    bool (*libchs_epm_data_present_by_type)(cepm_type_t cepm_type);
    /** Fills the zeroed record `cepm_data`, `cepm_type` included, which the library keeps. Returns a negative value on
     * failure. Null: the record stays zeroed. */
    int (*libchs_get_epm_data_by_type)(cepm_data_t *cepm_data, cepm_type_t cepm_type);
} epm_data_init_ops_t;

/** The table in use: empty, for the host to fill in before libchs_init(). The library never writes it. */
extern DST_API epm_data_init_ops_t epm_null_ops;

/* ---- Initialisation and release ---- */

/** Reads the description and makes it available: "/var/platform/chassis_dst.xml" if it is readable, else
 * "/var/platform/chassis_dst.conf", with the simulation tree "/var/platform/chassis_dst_sim.conf". Prints the model on
 * standard output, then fills the EPM list. Releases first what an earlier call read. A failing read leaves no model;
 * call again to retry. The chosen file is logged at LOG_INFO.
 *
 * Returns the result of libchs_chassis_epm_data_init(): 0, or the host's value. A negative value is failure:
 *   - no readable description, -1: "Fatal: Could not find configuration file %s OR %s" at LOG_ERR, then "Could not
 *     parse configuration file!";
 *   - a description that cannot be read or linked: what the reader returned, or -1 where that was positive; at
 *     LOG_ERR a line from each function on the way out, innermost first, then "Could not parse configuration file!".
 *     The verdict on an XML document goes to standard output, its errors to standard error; what the
 *     configuration-tree library finds wrong with a file is logged at LOG_ERR with file and line;
 *   - failing EPM initialisation: its value; the model stays available.
 *
 * An internal error of the configuration library ends the process with status 1 after a line at LOG_CRIT. */
DST_API int libchs_init(void);

/** Frees the model: every record handed out becomes invalid and every query answers null, or -1, again. Harmless
 * without a preceding libchs_init(). Logs nothing. */
DST_API void libchs_release(void);

/** The chassis-wide numbers. Returns null before libchs_init() and after libchs_release(); null after a failed read,
 * logged at LOG_ERR "%s: ERROR: Chassis information not present.". Owned by the model; valid until libchs_release(). */
DST_API const chassis_info_t *libchs_chassis_info_get(void);

/** The model itself: `&chs_info`, never null, also while it is empty. */
DST_API libdst_chs_info_t *libdst_get_chs_info(void);

/* ---- Queries ----
 *
 * What all of them share:
 *
 * Results are the model's own records, not copies: owned by the model, valid until libchs_release().
 *
 * Iteration (`..._get_next...`): null starts a walk; a record continues it, with the record after that one; null ends
 * it. The walk keeps list order. "By id" names the key, the members by whose value the record passed is found: a copy
 * of it will do. Where several records have that key the model's own record is found by its address and anything else
 * stands for the first of them, so a walk that passes each result on always ends. A key that is not in the list gives
 * null. A filtered walk looks for the record passed only among those that pass the filter.
 *
 * Log: an empty list is logged at LOG_ERR, on every call, as "%s: " and the text given with the function; for "%s"
 * stands the operation behind it, the function's name without libchs_ or libdst_ and with _priv. Nothing else is logged
 * unless said, neither the end of a walk nor an unknown id.
 *
 * Without a model: before libchs_init() and after libchs_release() every query answers null (an int: -1) and logs
 * nothing, and so does one whose operation the host has taken out; after a failed read queries answer, and log, as on
 * empty lists.
 *
 * Each call walks its list from the head. Nothing is allocated and nothing changes. */

/** I2C devices. By id. "Empty i2c device list!". */
DST_API i2c_dev_info_t *libchs_i2c_dev_info_get_next(i2c_dev_info_t *i2c_info);

/** I2C devices of kind `type`. By id. "Empty i2c device list!". */
DST_API i2c_dev_info_t *libchs_i2c_dev_info_get_next_by_type(i2c_dev_info_t *i2c_info, i2cdev_type_t type);

/** The first I2C device with that id, or null. "Empty i2c device list!". */
DST_API i2c_dev_info_t *libchs_i2c_dev_info_by_id(uint32_t id);

/** Fan trays; a result also is the fan module record that its `ctrl_type` tells. By id. "empty fan list!". */
DST_API fan_info_t *libchs_fan_info_get_next(fan_info_t *fan_info);

/** Power supplies. By id. "empty pem list!". */
DST_API pem_info_t *libchs_pem_info_get_next(pem_info_t *pem_info);

/** FPC boards. By id. "empty fpc list!". */
DST_API fpc_info_t *libchs_fpc_info_get_next(fpc_info_t *fpc_info);

/** SIB boards. By id. "empty sib list!". */
DST_API sib_info_t *libchs_sib_info_get_next(sib_info_t *sib_info);

/** FPM boards. By id. "empty fpm list!". */
DST_API fpm_info_t *libchs_fpm_info_get_next(fpm_info_t *fpm_info);

/** FTC boards. By id. "empty ftc list!". */
DST_API ftc_info_t *libchs_ftc_info_get_next(ftc_info_t *ftc_info);

/** CB boards. By id. "empty cb list!". */
DST_API cb_info_t *libchs_cb_info_get_next(cb_info_t *cb_info);

/** TIB boards. By id. "empty tib list!", line feed. */
DST_API tib_info_t *libchs_tib_info_get_next(tib_info_t *tib_info);

/** Temperature sensors. By id. "empty temp sensor list!". */
DST_API tmpsnr_info_t *libchs_tmpsnr_info_get_next(tmpsnr_info_t *tmpsnr_info);

/** The first temperature sensor with that id, or null. "empty temp sensor list!". */
DST_API tmpsnr_info_t *libchs_tmpsnr_info_get_by_id(uint32_t tmpsnr_id);

/** Voltage sensors. By id. "empty volt sensor list!". */
DST_API voltsnr_info_t *libchs_voltsnr_info_get_next(voltsnr_info_t *voltsnr_info);

/** The first voltage sensor with that id, or null. "empty volt sensor list!". */
DST_API voltsnr_info_t *libchs_voltsnr_info_get_by_id(uint32_t voltsnr_id);

/** LEDs. By id. "empty led list!". */
DST_API led_info_t *libchs_led_info_get_next(led_info_t *led_info);

/** The first LED with that id, or null. "empty led/lcd list!". */
DST_API led_info_t *libchs_led_info_get_by_id(uint32_t led_id);

/** LCDs. By id. "empty lcd list!". */
DST_API lcd_info_t *libchs_lcd_info_get_next(lcd_info_t *lcd_info);

/** The first LCD with that id, or null. "empty lcd list!". */
DST_API lcd_info_t *libchs_lcd_info_get_by_id(uint32_t id_lcd);

/** Buttons. By id. "empty btn list!". */
DST_API btn_info_t *libchs_btn_info_get_next(btn_info_t *btn_info);

/** The first button with that id, or null. "empty button list!". */
DST_API btn_info_t *libchs_btn_info_get_by_id(uint32_t button_id);

/** PICs. By id. "empty pic list!". */
DST_API pic_info_t *libchs_pic_info_get_next(pic_info_t *pic_info);

/** Switching ASICs. By id. "empty asic list!". */
DST_API asic_info_t *libchs_asic_info_get_next(asic_info_t *asic_info);

/** Ports of the first ASIC with the id `asic_dev_id`; null when there is no such ASIC. By id. "empty asic list!". */
DST_API bcm_port_info_t *libchs_bcm_port_info_get_next(uint32_t asic_dev_id, bcm_port_info_t *info);

/** The first port, of all ASICs, whose `id` is `port_no`, or null. "empty asic list!". */
DST_API bcm_port_info_t *libchs_bcm_port_info_get_by_port_no(uint32_t port_no);

/** Ports, of all ASICs in turn, whose `pic_i2cid` is `pic_i2c_id`. By id. "empty asic list!". */
DST_API bcm_port_info_t *libchs_bcm_port_info_get_next_by_picid(uint32_t pic_i2c_id, bcm_port_info_t *info);

/** Optical ports. By port_id and pic_id together. "empty optics list!". */
DST_API optics_info_t *libchs_optics_info_get_next(optics_info_t *optics_info);

/** Optical ports whose `port_id` is `port_no`. By port_id and pic_id together. "empty optics list!", from
 * optics_info_get_next_by_portno_priv. */
DST_API optics_info_t *libchs_optics_info_get_next_by_port_no(uint32_t port_no, optics_info_t *optics_info);

/** Optical ports whose `pic_id` is `slotno`. By port_id and pic_id together. "empty optics list!". */
DST_API optics_info_t *libchs_optics_info_get_next_by_slotno(uint32_t slotno, optics_info_t *optics_info);

/** FRU models. By id. "empty fru model list!". */
DST_API fru_model_info_t *libdst_fru_model_info_get_next(const fru_model_info_t *fminfo);

/** FRU models of kind `ftype`. By id and fru_type together. "empty fru model list!". */
DST_API fru_model_info_t *libdst_fru_model_info_get_next_by_type(const fru_model_info_t *fminfo, fru_type_t ftype);

/** Chassis models. By id. "empty chassis model list!". */
DST_API fru_model_info_t *libdst_chassis_model_info_get_next(const fru_model_info_t *fminfo);

/* ---- FRUs and what sits on them ----
 *
 * Nothing enforces a tree: parents are found by id. Where ids repeat, a FRU may be among its own children and have
 * children whose `parent` is another record; a FRU may be above itself; and levels may be as many as FRUs. So a walk
 * down takes only children whose `parent` is the very record, and it, like a walk up, stops after so many levels. */

/** FRUs. By id. "empty fru list!". */
DST_API fru_info_t *libchs_fru_info_get_next(fru_info_t *fru_info);

/** The first FRU with that id, or null. "empty fru list!". */
DST_API fru_info_t *libchs_fru_info_get_by_id(uint32_t fru_id);

/** FRUs of kind FRU_TYPE_FAN. By id. "empty fru list!". */
DST_API fru_info_t *libchs_fru_info_get_next_by_fan(fru_info_t *fru_info);

/** FRUs of kind FRU_TYPE_PEM. By id. "empty fru list!". */
DST_API fru_info_t *libchs_fru_info_get_next_by_pem(fru_info_t *fru_info);

/** FRUs of kind FRU_TYPE_FPC. By id. "empty fru list!". */
DST_API fru_info_t *libchs_fru_info_get_next_by_fpc(fru_info_t *fru_info);

/** FRUs of kind FRU_TYPE_SIB. By id. "empty fru list!". */
DST_API fru_info_t *libchs_fru_info_get_next_by_sib(fru_info_t *fru_info);

/** FRUs of kind FRU_TYPE_FPM. By id. "empty fru list!". */
DST_API fru_info_t *libchs_fru_info_get_next_by_fpm(fru_info_t *fru_info);

/** FRUs of kind FRU_TYPE_FTC. By id. "empty fru list!". */
DST_API fru_info_t *libchs_fru_info_get_next_by_ftc(fru_info_t *fru_info);

/** FRUs of kind FRU_TYPE_CB. By id. "empty fru list!". */
DST_API fru_info_t *libchs_fru_info_get_next_by_cb(fru_info_t *fru_info);

/** FRUs of kind FRU_TYPE_TIB. By id. "empty fru list!", line feed. */
DST_API fru_info_t *libchs_fru_info_get_next_by_tib(fru_info_t *fru_info);

/** FRUs of kind FRU_TYPE_PIC. By id. "empty fru list!". */
DST_API fru_info_t *libchs_fru_info_get_next_by_pic(fru_info_t *fru_info);

/** Fan trays on the FRU with the id `fru_id`. By the FRU's id and ctrl_type together. "empty fan list!". */
DST_API fan_info_t *libchs_fru_fan_info_get_next(uint32_t fru_id, fan_info_t *fan_info);

/** Power supplies on the FRU with the id `fru_id`. By the FRU's id and ctrl_type together. "empty pem list!". */
DST_API pem_info_t *libchs_fru_pem_info_get_next(uint32_t fru_id, pem_info_t *pem_info);

/** FPC boards on the FRU with the id `fru_id`. By the FRU's id and ctrl_type together. "empty fpc list!". */
DST_API fpc_info_t *libchs_fru_fpc_info_get_next(uint32_t fru_id, fpc_info_t *fpc_info);

/** SIB boards on the FRU with the id `fru_id`. By the FRU's id and ctrl_type together. "empty sib list!". */
DST_API sib_info_t *libchs_fru_sib_info_get_next(uint32_t fru_id, sib_info_t *sib_info);

/** FPM boards on the FRU with the id `fru_id`. By the FRU's id and ctrl_type together. "empty fpm list!". */
DST_API fpm_info_t *libchs_fru_fpm_info_get_next(uint32_t fru_id, fpm_info_t *fpm_info);

/** FTC boards on the FRU with the id `fru_id`. By the FRU's id and ctrl_type together. "empty ftc list!". */
DST_API ftc_info_t *libchs_fru_ftc_info_get_next(uint32_t fru_id, ftc_info_t *ftc_info);

/** CB boards on the FRU with the id `fru_id`. By the FRU's id and ctrl_type together. "empty cb list!". */
DST_API cb_info_t *libchs_fru_cb_info_get_next(uint32_t fru_id, cb_info_t *cb_info);

/** TIB boards on the FRU with the id `fru_id`. By the FRU's id and ctrl_type together. "empty tib list!", line feed. */
DST_API tib_info_t *libchs_fru_tib_info_get_next(uint32_t fru_id, tib_info_t *tib_info);

/** PICs on the FRU with the id `fru_id`. By the FRU's id and ctrl_type together; a PIC without FRU is never found.
 * "empty pic list!". */
DST_API pic_info_t *libchs_fru_pic_info_get_next(uint32_t fru_id, pic_info_t *pic_info);

/** Top-level FRUs, those without a parent. By id. "empty fru list!"; every other null result, the end of the walk
 * included, is logged at LOG_ERR "%s: could not find the fru info for the parent!". */
DST_API fru_info_t *libchs_fru_info_get_next_parent(fru_info_t *fru_info);

/** Direct children of the FRU with the id of `parent`, which may be a copy. By id. "empty fru list!"; every other null
 * result, the end of the walk included, is logged at LOG_ERR "%s: could not find the fru info for the parent!", a null
 * `parent` "%s: input parent should not be NULL!". */
DST_API fru_info_t *libchs_fru_info_get_next_child(fru_info_t *parent, fru_info_t *fru_info);

/** Stores the id of the first FRU of kind `fru_type` in slot `slotno` (no slot is above 255) through `fru_id`, which
 * must not be null, and returns 0. Returns -1 when there is none, `*fru_id` untouched. "empty fru list!". */
DST_API int libdst_fru_info_get_id_by_type_slotno(fru_type_t fru_type, uint32_t slotno, uint32_t *fru_id);

/* ---- EPM and resiliency ---- */

/** Fills the EPM list from the host's table `epm_null_ops`, the main board before the CPU board; records of an earlier
 * call are freed first. libchs_init() calls it.
 *
 * Returns what the host's last fill function returned, 0 when none ran. Failure, with the list empty:
 *   - the host's negative value, logged at LOG_ERR "%s: could not get epm data (%d)!" with the board's number;
 *   - -1 when memory ran out, logged at LOG_ERR "%s: could not allocate the memory for creating EPM data.!";
 *   - -1 without a model. */
DST_API int libchs_chassis_epm_data_init(void);

/** EPM records. By cepm_type. "empty epm list!". */
DST_API cepm_data_t *libchs_epm_data_get_next(cepm_data_t *cepm_data);

/** The first EPM record whose `cepm_type` is the argument, or null. "empty epm list!". */
DST_API cepm_data_t *libchs_epm_data_get_by_type(cepm_type_t cepm_type);

/** The first resiliency entry of the FRU model with that kind and assembly id, or null. An empty list is not logged. */
DST_API resil_fru_list_t *libdst_resil_get_fru_list(fru_type_t ftype, uint16_t id);

/** The module after `current`, or the first of `rlist` when `current` is null; null at the end, and when both are null.
 * Follows the link of `current`, which must be the model's own; `rlist` is not looked at then. Logs nothing. A
 * module's error sources are its list `resil_errors`. */
DST_API resil_module_list_t *libdst_resil_module_list_get_next(resil_fru_list_t *rlist,
                                                               const resil_module_list_t *current);

/* ---- Diagnosis and helpers ---- */

/** Prints `chs_info` as indented, XML-like text on standard output, without flushing it. LCDs, TIB boards and EPM
 * records are left out. libchs_init() calls it; an empty model prints the chassis block alone. */
DST_API void display_dst_info(void);

/** Finds the PCI address of a device: of the first line of `lspci` that contains `dev_id_str` as a whole word. Runs the
 * shell with `lspci`, `grep` and `awk`; needs no model.
 *
 * `dev_id_str` is a NUL-terminated text of 1 to 93 characters out of letters, digits, '_', '.' (any character), ':'
 * and '-', the last neither first nor last; for any other text nothing is run. `bus`, `dev` and `func` must not be
 * null; each gets the low 8 bits.
 *
 * Returns 0; or -1, with the outputs untouched, for a text that is refused, when the tool could not be started,
 * printed no line, or the line does not begin with bus:device.function in hexadecimal (an address with a PCI domain
 * before the bus does not). Logged at LOG_ERR, without a function's name:
 *   - the line read, with its line feed: "lspci|grep %s:  = %s", for "%s" the text and the line;
 *   - the tool could not be started: "Failed to get pci device list(lspci)!";
 *   - no line, or not an address: "PCI device device with id: %s not found!";
 *   - a text that is refused: the same, with "(invalid)" in place of the text. */
DST_API int get_pcie_bus_device_info(const void *dev_id_str, uint8_t *bus, uint8_t *dev, uint8_t *func);

#ifdef __cplusplus
}
#endif

#endif
