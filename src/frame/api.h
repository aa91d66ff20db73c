// The public headers as the library itself sees them: every export is called by its public name and defined under the
// variant's own symbol (u8_qvxsAdd_32f), so that calls between families never pass an entry stub.
#pragma once

#define QVXS_QUOTE_(x) #x
#define QVXS_QUOTE(x) QVXS_QUOTE_(x)
#undef QVXS_API  // qvxdefs.h may have come first
#define QVXS_API(result, name, arguments) result name arguments __asm__(QVXS_QUOTE(QVXS_VARIANT) "_" #name)

#include <qvx/qvxs.h>
