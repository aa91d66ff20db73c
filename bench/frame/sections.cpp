// What the page shows: for each chapter the functions that a reader of the field looks for first.
#include "frame/page.h"

namespace bench {

namespace {

const std::vector<int> kVectors = {16, 256, 4096, 65536, 4 << 20};
const std::vector<int> kLists = {10, 100, 1000, 10000, 100000, 1000000};
const std::vector<int> kLengths = {7, 9, 96, 97, 640, 768, 9600, 65537};
const std::vector<int> kBlocks = {64, 1024, 65536};
const std::vector<int> kTaps = {16, 64, 256, 1024};
const std::vector<int> kOrders = {1 << 3, 1 << 4, 1 << 5, 1 << 6, 1 << 8, 1 << 10, 1 << 12, 1 << 14, 1 << 16, 1 << 18, 1 << 20};

}  // namespace

// clang-format off
const std::vector<Section> kSections = {
    {"Sums and products",
     "From 4 Mi elements on all contenders wait for memory.",
     {"arithmetic"}, {"add", "sub", "mul"}, kVectors,
     {"Add_32f", "Add_64f", "Add_16s", "Add_16s_Sfs, scale 1", "AddC_32f", "AddC_8u_Sfs, scale 3", "Sub_32s_Sfs, scale 3", "Mul_32f",
      "Mul_32fc", "Mul_16s_Sfs, scale 15", "Mul_16sc_Sfs, scale 3", "MulC_32fc", "AddProduct_32f"}},
    {"Quotients and roots",
     "Integer quotients and roots are exact before they are scaled and rounded once. *doubles* is a loop of double precision, "
     "*scalar* one that the compiler was kept from turning into vectors.",
     {}, {"div", "sqr", "sqrt"}, kVectors,
     {"Div_32f", "Div_64f", "Div_32fc", "Div_16s_Sfs, scale 0", "DivC_16s_Sfs, scale 0", "Div_32s_Sfs, scale -3", "Sqr_16s_Sfs, scale 3",
      "Sqrt_32f", "Sqrt_64f", "Sqrt_32fc", "Sqrt_16s_Sfs, scale 0"}},
    {"Exponentials, logarithms, arctangents",
     "Errors are below 1 unit in the last place (`./run accuracy` has each), as SLEEF's of this precision are. *-Ofast* is the C "
     "library's vector function, of up to 4 units.",
     {"elementary"}, {"math", "integer_math"}, kVectors,
     {"Exp_32f", "Exp_64f", "Ln_32f", "Ln_64f", "Arctan_32f", "Arctan_64f", "Cubrt_32f", "SumLn_32f", "Ln_16s_Sfs, scale -10",
      "Exp_16s_Sfs, scale 0"}},
    {"Copies, logic, shifts", "", {}, {"copy", "logic", "shift"}, kVectors,
     {"Copy_8u", "Move_32f", "Zero_32f", "Set_32f", "Copy_1u, bit 3 to bit 5", "And_32u", "Not_8u", "RShiftC_16s", "SwapBytes_32u_I"}},
    {"Conversions", "", {"conversion"}, {"widen", "narrow", "float_to_int", "half"}, kVectors,
     {"Convert_16s32f", "Convert_32f16s_Sfs, nearest, scale 0", "Convert_32f32s_Sfs, nearest, scale 3", "Convert_32f64f",
      "Convert_64f32f", "Convert_24s32f", "Convert_32f24s_Sfs, scale 3", "Convert_32s16s", "Convert_16f32f", "Convert_32f16f"}},
    {"Complex vectors", "", {}, {"complex_forms", "polar"}, kVectors,
     {"Real_32fc", "CplxToReal_32fc", "RealToCplx_32f", "Conj_32fc", "Flip_32f", "PowerSpectr_32fc", "PowerSpectr_16sc_Sfs, scale 15",
      "Magnitude_32fc", "Phase_32fc", "Phase_32f", "CartToPolar_32fc", "PolarToCart_32fc"}},
    {"Companding, channels, thresholds", "", {}, {"compand", "channels", "threshold"}, kVectors,
     {"ALawToLin_8u16s", "LinToMuLaw_16s8u", "Join_32f16s_D2L, 2 channels", "SplitScaled_16s32f_D2L, 2 channels",
      "SplitScaled_24s32f_D2L, 6 channels", "Threshold_LT_32f", "Threshold_LTValGTVal_32f", "Threshold_GTAbs_16s",
      "Threshold_LTInv_32f"}},
    {"Statistics",
     "The plain loops are compiled with -ffast-math: without it a sum is one chain of additions. *hint 0* sums in double precision.",
     {"statistics"}, {"sum", "extrema", "norm", "dot_product"}, kVectors,
     {"Sum_32f, hint 1", "Sum_64f", "MeanStdDev_32f, hint 1", "DotProd_32f", "DotProd_32fc", "DotProd_16s64s", "Max_32f", "MaxIndx_32f",
      "MinMax_16s", "MaxAbs_16s", "Norm_Inf_32f", "Norm_L1_16s64s_Sfs", "Norm_L2_32f", "NormDiff_L2_32f"}},
    {"Fourier transforms",
     "Forward, without scaling; 5 N log2 N operations are counted for a complex transform and half of that for a real one. `_I` is in "
     "place. Real spectra are in the layout of FFTW. *built*: from its source package; *patient*: so, planned with FFTW_PATIENT. kissfft has floats only, and copies in place.",
     {"fft_complex", "fft_real"}, {"fft_32fc", "fft_64fc", "fft_32f", "fft_64f"}, kOrders,
     {"FFTFwd_CToC_32fc", "FFTFwd_CToC_32fc_I", "FFTFwd_CToC_64fc", "FFTFwd_CToC_64fc_I", "FFTFwd_RToCCS_32f", "FFTFwd_RToCCS_64f"},
     true},
    {"Fourier transforms of integers",
     "*through FFTW* converts to floats or doubles, transforms, and converts back with rounding and saturation.", {}, {"fft_integer"},
     kOrders,
     {"FFTFwd_CToC_16sc_Sfs", "FFTFwd_CToC_32sc_Sfs", "FFTFwd_RToCCS_16s_Sfs", "FFTFwd_RToCCS_32s_Sfs", "FFTFwd_RToCCS_16s32s_Sfs"},
     true},
    {"Packed spectra", "", {}, {"spectrum"}, kVectors, {"MulPack_32f", "MulPerm_32f", "MulPerm_16s_Sfs, scale 15", "ConjPack_32fc"}},
    {"Transforms of any length",
     "As the Fourier transforms above; lengths with large prime factors are convolutions inside.", {}, {"dft"}, kLengths,
     {"DFTFwd_CToC_32fc", "DFTFwd_CToC_64fc", "DFTFwd_RToCCS_32f", "DFTFwd_RToCCS_64f"}},
    {"Cosine and Hilbert transforms", "FFTW has cosine transforms of its own, and two transforms for a Hilbert one.", {}, {"dct", "hilbert"},
     kLengths, {"DCTFwd_32f", "DCTInv_32f", "DCTFwd_64f", "DCTInv_64f", "Hilbert_32f32fc"}},
    {"FIR filters",
     "Streams in blocks of n samples. 2 operations are counted for a tap and a sample, 8 in complex numbers; long filters on long "
     "blocks go by way of the FFT and need fewer, so they come out above what the processor could multiply.",
     {"fir"}, {"fir"}, kBlocks,
     {"FIR_32f, 4 taps", "FIR_32f, 16 taps", "FIR_32f, 63 taps", "FIR_32f, 127 taps", "FIR_32f, 512 taps", "FIR_32f, 2048 taps",
      "FIR_64f, 63 taps", "FIR_32fc, 16 taps", "FIR_32fc, 63 taps", "FIR_32fc, 512 taps", "FIR_16s_Sfs, 16 taps",
      "FIR_16s_Sfs, 127 taps"}},
    {"Multi-rate FIR filters",
     "Streams in blocks of n samples or outputs, whichever are more; samples to outputs as 160:147. Products with zeros, and those of "
     "dropped results, do not count as operations. liquid-dsp has no filter of both factors with fewer than two taps to a branch.",
     {}, {"multirate"}, kBlocks,
     {"FIRMR_32f, 2:1, 64 taps", "FIRMR_32f, 4:1, 64 taps", "FIRMR_32f, 8:1, 256 taps", "FIRMR_32f, 1:2, 64 taps",
      "FIRMR_32f, 3:2, 64 taps", "FIRMR_32f, 2:3, 256 taps", "FIRMR_32f, 147:160, 2048 taps", "FIRMR_32f, 160:147, 2048 taps",
      "FIRMR_32fc, 2:1, 64 taps", "FIRMR_32fc, 147:160, 2048 taps", "FIRMR_16s_Sfs, 2:1, 64 taps",
      "FIRMR_16s_Sfs, 160:147, 2048 taps"}},
    {"Sparse FIR filters",
     "Streams in blocks of n samples; taps lie up to 200 samples apart. *by tap* adds a tap's products to all samples of the block.", {},
     {"sparse"}, kBlocks, {"FIRSparse_32f, 4 taps", "FIRSparse_32f, 16 taps", "FIRSparse_32f, 64 taps"}},
    {"Design of FIR filters",
     "n taps under the Hamming window. *doubles* is the formula in a loop with -ffast-math; where it is the difference of two filters, it "
     "cancels.",
     {}, {"fir_design"}, kTaps, {"FIRGenLowpass_64f", "FIRGenBandpass_64f"}},
    {"Adaptive filters", "", {}, {"lms"}, kBlocks, {"FIRLMS_32f, 16 taps", "FIRLMS_32f, 64 taps", "FIRLMS_32f, 256 taps"}},
    {"Recursive filters",
     "Streams in blocks of n samples. 9 operations are counted for a section and a sample, 4 order + 1 for a direct form.",
     {"iir"}, {"iir"}, kBlocks,
     {"IIR_32f, 1 section", "IIR_32f, 2 sections", "IIR_32f, 4 sections", "IIR_32f, 8 sections", "IIR_32f, 16 sections",
      "IIR_32f, DF1, 4 sections", "IIR_64f, 2 sections", "IIR_64f, 8 sections", "IIR_32f, order 2", "IIR_32f, order 8",
      "IIR_64f, order 16", "IIR32f_16s, order 4"}},
    {"Wavelets and single frequencies", "", {}, {"haar", "filter_bank", "goertzel"}, kVectors,
     {"WTHaarFwd_32f", "WTHaarInv_32f", "WTHaarFwd_16s", "Goertz_32f", "Goertz_64f", "GoertzTwo_32f"}},
    {"Convolution, correlation, medians, sampling",
     "*networks* keep a window in registers, for one mask each; *sorted window* is the textbook's. A convolution stands at its number of results.",
     {}, {"correlation", "median", "sample"}, kVectors,
     {"FilterMedian_32f, mask 3", "FilterMedian_32f, mask 5", "FilterMedian_64f, mask 5", "FilterMedian_32f, mask 9"}},
    {"Generators and windows",
     "*a fill* only stores a constant, *a table* multiplies by a window computed before: both are bounds, counted nowhere.", {},
     {"generators", "windows"}, kVectors,
     {"RandUniform_32f", "RandGauss_32f", "Tone_32f", "Tone_64f", "WinHann_32f_I", "WinHann_64f_I", "WinHamming_32f_I",
      "WinKaiser_32f_I"}},
    {"Modem helpers", "", {}, {"decode", "helpers"}, kVectors,
     {"DemodulateFM_CToR_16s", "ZeroCrossing_32f, type 0", "ZeroCrossing_16s32f, type 0", "Cauchy_32f_I", "CauchyD_32f_I"}},
    {"Sorting",
     "The time holds a copy of the vector. *VQSort* is that of Highway 1.0.3, *radix* a textbook's with digits of 8 or 11 bits and room to "
     "move elements through.",
     {}, {"sort"}, kLists,
     {"SortAscend_8u_I", "SortAscend_16s_I", "SortAscend_32s_I", "SortAscend_32f_I", "SortAscend_32f_I, sorted",
      "SortAscend_32f_I, 4 values", "SortAscend_64f_I", "SortIndexAscend_32f_I, all different"}},
};
// clang-format on

}  // namespace bench
