/* Every function of the public headers with its types and no body: what the record of the binary interface is made from and
 * compared with. That the libraries export just these is proved elsewhere. */
#include <qvx/qvxdefs.h>
#undef QVXS_API
#define QVXS_API(result, name, arguments) \
  result name arguments { __builtin_unreachable(); }
#include <qvx/qvxs.h>
