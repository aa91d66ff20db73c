/* A user's program: fails unless the arithmetic is right and the loader gave the variant that the command line names. */
#include <qvx/qvxcore.h>
#include <qvx/qvxs.h>
#include <stdio.h>
#include <string.h>

enum { kLength = 101 };

static int addsScaled(void) {
  Qvx16s* const vector = qvxsMalloc_16s(kLength);
  int wrong = 0;
  int i;
  if (vector == NULL) return 1;
  for (i = 0; i < kLength; ++i) vector[i] = (Qvx16s)(i - 50);
  if (qvxsAddC_16s_ISfs(1, vector, kLength, 1) != qvxStatOk) wrong = 1;
  for (i = 0; i < kLength; ++i) {
    const int sum = i - 49;
    const int floorHalf = (sum - (sum & 1)) / 2;
    wrong |= vector[i] != floorHalf + (sum & floorHalf & 1); /* half of the sum, ties to even */
  }
  qvxsFree(vector);
  return wrong;
}

static int multipliesAndConverts(void) {
  const Qvx16s src[3] = {-32768, 3, 32767};
  Qvx32f product[3];
  Qvx16s back[3];
  const QvxStatus status[] = {qvxsConvert_16s32f(src, product, 3), qvxsMulC_32f_I(1.5f, product, 3),
                              qvxsConvert_32f16s_Sfs(product, back, 3, qvxRoundNearestEven, 0)};
  return status[0] != qvxStatOk || status[1] != qvxStatOk || status[2] != qvxStatOk || product[1] != 4.5f || back[0] != -32768 ||
         back[1] != 4 || back[2] != 32767;
}

static int allocatesAligned(void) {
  void* const block = qvxMalloc(1000);
  const int wrong = block == NULL || qvxAlignPtr(block, 64) != block;
  qvxFree(block);
  return wrong;
}

int main(int argc, char** argv) {
  const char* const variant = qvxsGetLibVersion()->cpuTag;
  if (argc != 2 || strcmp(variant, argv[1]) != 0) {
    fprintf(stderr, "the loader gave variant %s\n", variant);
    return 1;
  }
  if (addsScaled() || multipliesAndConverts() || allocatesAligned()) {
    fprintf(stderr, "wrong result from variant %s\n", variant);
    return 1;
  }
  printf("%s\n", variant);
  return 0;
}
