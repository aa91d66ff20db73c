// The public headers as the library itself sees them: an export is called by its public name, but its symbol has the variant's
// prefix (u8_qvxsAdd_32f), so calls between families bypass the entry stubs.
#pragma once

#define QVXS_QUOTE_(x) #x
#define QVXS_QUOTE(x) QVXS_QUOTE_(x)
#undef QVXS_API  // qvxdefs.h may have come first
#define QVXS_API(result, name, arguments) result name arguments __asm__(QVXS_QUOTE(QVXS_VARIANT) "_" #name)

#include <qvx/qvxs.h>
