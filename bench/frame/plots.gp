# The plots of docs/performance.md, from measurements.tsv in the folder it is run in. No background, and greys and colours of at
# least 3 : 1 against white and against black, so that a page may be either.

set terminal svg size 760,420 dynamic font "sans-serif,13" noenhanced
grey = "#7d7d7d"
set border 3 lc rgb grey
set tics nomirror textcolor rgb grey
set grid lc rgb "#7d7d7d" lw 0.3
set key outside right center vertical Left reverse samplen 2 textcolor rgb grey
set title textcolor rgb grey
set xlabel textcolor rgb grey
set ylabel textcolor rgb grey
blue = "#2f81f7"; orange = "#d9730d"; green = "#2f9e44"; purple = "#9b6dd6"; red = "#e5484d"; teal = "#0d9aa5"
do for [i = 1:6] { set style line i lw 2 pt 7 ps 0.5 lc rgb word("#2f81f7 #d9730d #2f9e44 #9b6dd6 #e5484d #0d9aa5", i) }
# Of the other precision or length: dashed.
do for [i = 1:6] { set style line (10 + i) lw 2 pt 6 ps 0.5 dt (6, 4) lc rgb word("#2f81f7 #d9730d #2f9e44 #9b6dd6 #e5484d #0d9aa5", i) }

# Columns of measurements.tsv: family, export, n, operations, our ns, noise, peer, its ns, noise.
table(condition, columns) = "< awk -F'\t' '" . condition . " {print " . columns . "}' measurements.tsv"
is(name) = "$2 == \"" . name . "\""
beside(name, peer) = is(name) . " && $7 == \"" . peer . "\""
# n, elements/ns or GFLOPS
ours(name) = table(is(name) . " && !seen[$3]++", "$3, ($4 ? $4 : $3) / $5")
theirs(name, peer) = table(beside(name, peer), "$3, ($4 ? $4 : $3) / $8")
ratio(name, peer) = table(beside(name, peer), "$3, $8 / $5")
# Of a name such as "FIR_32f, 63 taps" the number, and GFLOPS, at one n.
numbered(name, what, n) = "$2 ~ /^" . name . ", [0-9]+ " . what . "$/ && $3 == " . n
oursBy(name, what, n) = table(numbered(name, what, n) . " && split($2, w, \" \") && !seen[$2]++", "w[2], $4 / $5")
theirsBy(name, what, peer, n) = table(numbered(name, what, n) . " && $7 ~ /" . peer . "/ && split($2, w, \" \")", "w[2], $4 / $8")

# ---- ratios over the length

set logscale x 2
set logscale y 2
set xrange [12:6e6]
set xtics (16, 256, 4096, 65536, "4 Mi" 4194304)
set xlabel "elements"
set ylabel "time of the peer / our time"
set arrow 1 from graph 0, first 1 to graph 1, first 1 nohead lw 1.5 lc rgb grey

set output "arithmetic.svg"
plot ratio("Add_32f", "VOLK") with linespoints ls 1 title "Add_32f, VOLK", \
     ratio("Add_32f", "plain") with linespoints ls 11 title "Add_32f, plain", \
     ratio("Mul_32fc", "VOLK") with linespoints ls 2 title "Mul_32fc, VOLK", \
     ratio("Mul_32fc", "plain") with linespoints ls 12 title "Mul_32fc, plain", \
     ratio("Add_16s_Sfs, scale 1", "plain") with linespoints ls 13 title "Add_16s_Sfs, plain", \
     ratio("Mul_16s_Sfs, scale 15", "plain") with linespoints ls 14 title "Mul_16s_Sfs, plain", \
     ratio("AddC_8u_Sfs, scale 3", "plain") with linespoints ls 15 title "AddC_8u_Sfs, plain"

set output "conversion.svg"
plot ratio("Convert_16s32f", "VOLK") with linespoints ls 1 title "16s to 32f, VOLK", \
     ratio("Convert_16s32f", "plain") with linespoints ls 11 title "16s to 32f, plain", \
     ratio("Convert_32f16s_Sfs, nearest, scale 0", "VOLK") with linespoints ls 2 title "32f to 16s, VOLK", \
     ratio("Convert_32f16s_Sfs, nearest, scale 0", "plain") with linespoints ls 12 title "32f to 16s, plain", \
     ratio("Convert_24s32f", "plain") with linespoints ls 13 title "24s to 32f, plain", \
     ratio("Convert_32f24s_Sfs, scale 3", "plain") with linespoints ls 14 title "32f to 24s, plain", \
     ratio("Convert_16f32f", "plain") with linespoints ls 15 title "16f to 32f, plain"

set output "statistics.svg"
plot ratio("Sum_32f, hint 1", "VOLK") with linespoints ls 1 title "Sum_32f, VOLK", \
     ratio("Sum_32f, hint 1", "plain") with linespoints ls 11 title "Sum_32f, plain", \
     ratio("DotProd_32f", "VOLK") with linespoints ls 2 title "DotProd_32f, VOLK", \
     ratio("DotProd_32f", "plain") with linespoints ls 12 title "DotProd_32f, plain", \
     ratio("MeanStdDev_32f, hint 1", "VOLK") with linespoints ls 3 title "MeanStdDev_32f, VOLK", \
     ratio("MaxIndx_32f", "VOLK") with linespoints ls 4 title "MaxIndx_32f, VOLK", \
     ratio("MinMax_16s", "plain") with linespoints ls 15 title "MinMax_16s, plain"

# ---- rates over the length

unset arrow 1
unset logscale y
set yrange [0:*]
set ylabel "elements per ns"
set output "elementary.svg"
plot ours("Exp_32f") with linespoints ls 1 title "Exp_32f", \
     theirs("Exp_32f", "SLEEF") with linespoints ls 11 title "SLEEF", \
     ours("Ln_32f") with linespoints ls 2 title "Ln_32f", \
     theirs("Ln_32f", "SLEEF") with linespoints ls 12 title "SLEEF", \
     ours("Arctan_32f") with linespoints ls 3 title "Arctan_32f", \
     theirs("Arctan_32f", "SLEEF") with linespoints ls 13 title "SLEEF", \
     ours("Exp_64f") with linespoints ls 4 title "Exp_64f", \
     theirs("Exp_64f", "SLEEF") with linespoints ls 14 title "SLEEF", \
     ours("Ln_64f") with linespoints ls 5 title "Ln_64f", \
     theirs("Ln_64f", "SLEEF") with linespoints ls 15 title "SLEEF"

# ---- transforms

unset logscale x
set xrange [2.5:20.5]
set xtics 2
set xlabel "order: log2 of the length"
set ylabel "GFLOPS"
set output "fft_complex.svg"
plot ours("FFTFwd_CToC_32fc") using (log($1) / log(2)):2 with linespoints ls 1 title "32fc", \
     theirs("FFTFwd_CToC_32fc", "FFTW") using (log($1) / log(2)):2 with linespoints ls 2 title "FFTW, 32fc", \
     theirs("FFTFwd_CToC_32fc", "kissfft") using (log($1) / log(2)):2 with linespoints ls 3 title "kissfft, 32fc", \
     ours("FFTFwd_CToC_64fc") using (log($1) / log(2)):2 with linespoints ls 11 title "64fc", \
     theirs("FFTFwd_CToC_64fc", "FFTW") using (log($1) / log(2)):2 with linespoints ls 12 title "FFTW, 64fc"

set output "fft_real.svg"
plot ours("FFTFwd_RToCCS_32f") using (log($1) / log(2)):2 with linespoints ls 1 title "32f", \
     theirs("FFTFwd_RToCCS_32f", "FFTW") using (log($1) / log(2)):2 with linespoints ls 2 title "FFTW, 32f", \
     theirs("FFTFwd_RToCCS_32f", "kissfft") using (log($1) / log(2)):2 with linespoints ls 3 title "kissfft, 32f", \
     ours("FFTFwd_RToCCS_64f") using (log($1) / log(2)):2 with linespoints ls 11 title "64f", \
     theirs("FFTFwd_RToCCS_64f", "FFTW") using (log($1) / log(2)):2 with linespoints ls 12 title "FFTW, 64f"

# ---- filters

set logscale xy 2
set yrange [*:*]
set xrange [3:2600]
set xtics (4, 16, 63, 127, 512, 2048)
set xlabel "taps"
set ylabel "GFLOPS, counted as in the direct form"
set output "fir.svg"
plot oursBy("FIR_32f", "taps", 65536) with linespoints ls 1 title "32f", \
     theirsBy("FIR_32f", "taps", "VOLK", 65536) with linespoints ls 3 title "VOLK, 32f", \
     theirsBy("FIR_32f", "taps", "plain", 65536) with linespoints ls 2 title "plain, 32f", \
     theirsBy("FIR_32f", "taps", "liquid", 65536) with linespoints ls 4 title "liquid-dsp, 32f", \
     oursBy("FIR_32fc", "taps", 65536) with linespoints ls 11 title "32fc", \
     theirsBy("FIR_32fc", "taps", "VOLK", 65536) with linespoints ls 13 title "VOLK, 32fc", \
     theirsBy("FIR_32fc", "taps", "plain", 65536) with linespoints ls 12 title "plain, 32fc"

set xrange [0.9:18]
set xtics (1, 2, 4, 8, 16)
set xlabel "sections of second order"
set ylabel "GFLOPS"
set output "iir.svg"
plot oursBy("IIR_32f", "sections?", 1024) with linespoints ls 1 title "32f", \
     theirsBy("IIR_32f", "sections?", "by section", 1024) with linespoints ls 2 title "plain, by section", \
     theirsBy("IIR_32f", "sections?", "by sample", 1024) with linespoints ls 3 title "plain, by sample", \
     theirsBy("IIR_32f", "sections?", "liquid", 1024) with linespoints ls 4 title "liquid-dsp", \
     oursBy("IIR_64f", "sections?", 1024) with linespoints ls 11 title "64f", \
     theirsBy("IIR_64f", "sections?", "by section", 1024) with linespoints ls 12 title "plain, by section, 64f"
set output
