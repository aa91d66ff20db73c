// Entry stubs, their slots and the library's identity, all made from the lines of the public headers.
#define QUOTE_(x) #x
#define QUOTE(x) QUOTE_(x)
#define VARIANT QUOTE(QVXS_VARIANT)

// The identity is the first thing in the section of the slots. Both are written in assembler, since every compiler keeps the
// order of assembler statements.
__asm__(
    ".pushsection .data.rel.local.slots,\"aw\"\n.p2align 3\n"
    ".hidden qvxsVersionRecord\n.globl qvxsVersionRecord\n.type qvxsVersionRecord,@object\n"
    "qvxsVersionRecord:\n"
    "  .long 7, 0, 205, 1058\n"  // 1058 here and 58 in the text are both right: fixed values of the interface
    "  .ascii \"" VARIANT
    "\\0\\0\"\n  .zero 4\n"
    "  .quad qvxsVersionFile, qvxsVersionText, qvxsVersionDate\n"
    ".size qvxsVersionRecord, .-qvxsVersionRecord\n.popsection\n"
    ".pushsection .rodata.version,\"a\"\n"
    "qvxsVersionFile: .asciz \"libqvxs" VARIANT
    "-7.0.dylib\"\n"
    "qvxsVersionText: .asciz \"7.0 build 205.58\"\n"
    "qvxsVersionDate: .asciz \"Apr 19 2011\"\n.popsection\n");

// For every export a slot that holds the variant's own function, and a stub that jumps through it.
#define QVXS_API(result, name, arguments)                                                                \
  __asm__(                                                                                               \
      ".pushsection .data.rel.local.slots,\"aw\"\n.p2align 3\n"                                          \
      ".hidden " #name "_arraddr\n.globl " #name "_arraddr\n" #name "_arraddr: .quad " VARIANT "_" #name \
      "\n"                                                                                               \
      ".popsection\n"                                                                                    \
      ".text\n.p2align 4\n.globl " #name "\n.type " #name ",@function\n" #name ": endbr64\n jmp *" #name \
      "_arraddr(%rip)\n.size " #name ", .-" #name "\n")
#define QVXS_SLOTLESS(line)

#include <qvx/qvxs.h>

extern "C" {
extern __attribute__((visibility("hidden"))) const QvxLibraryVersion qvxsVersionRecord;
__attribute__((visibility("default"))) const QvxLibraryVersion* qvxsGetLibVersion() { return &qvxsVersionRecord; }
}
