/* What a client sees of an installed library: the family, and each FRU under its parent. */
#include <chsinfo/libdst.h>
#include <stdio.h>

int main(void) {
    if (libchs_init() != 0)
        return 1;
    printf("client: family %s\n", dst_chassis_family_type[libchs_chassis_info_get()->family]);
    for (fru_info_t *fru = libchs_fru_info_get_next(NULL); fru; fru = libchs_fru_info_get_next(fru))
        printf("client: %s on %s\n", fru->name, fru->parent ? fru->parent->name : "nothing");
    for (pic_module_list_t *pic = chs_info.pic_info.tqh_first; pic; pic = pic->pic_next.tqe_next)
        printf("client: %s in %s\n", pic->pic_minfo->name, pic->pic_minfo->fru_info->name);
    libchs_release();
    return dst_chs_info != NULL;
}
