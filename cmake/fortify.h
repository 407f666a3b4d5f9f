// Included before all else: the C library's checked functions, in builds that optimise.
#if defined __OPTIMIZE__ && !defined _FORTIFY_SOURCE
#define _FORTIFY_SOURCE 2
#endif
