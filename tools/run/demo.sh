# shellcheck shell=bash
# What ./run demo does with the examples.

demo() {
  need "${build_packages[@]}" "${example_packages[@]}" alsa-utils sound-theme-freedesktop
  local best sounds=/usr/share/sounds
  best=$(variants | tail -n 1)
  build demo -DQVXS_VARIANTS="$best"
  say "mixing into build/demo/mix.wav"
  build/demo/examples/mixdown --output build/demo/mix.wav \
    --gain -3 --gain -12.5 --gain 9 --gain -14 \
    "$sounds"/alsa/Front_Center.wav "$sounds"/alsa/Noise.wav "$sounds"/alsa/Side_Left.wav \
    "$sounds"/freedesktop/stereo/alarm-clock-elapsed.oga
  say "drawing the spectrum of the mix into build/demo/spectrum.png"
  build/demo/examples/spectrum build/demo/mix.wav --output build/demo/spectrum.png
  say "what it holds from moment to moment, in build/demo/spectrogram.png and by octaves"
  build/demo/examples/spectrogram draw build/demo/mix.wav --window 1323 --output build/demo/spectrogram.png
  build/demo/examples/spectrogram bands build/demo/mix.wav
  say "filtering it into build/demo/telephone.wav"
  build/demo/examples/equalise build/demo/mix.wav --taps examples/equalise/telephone.txt --output build/demo/telephone.wav
  say "a low-pass filter, its response in build/demo/response.png, its sound in build/demo/low.wav"
  build/demo/examples/parametric low --frequency 1000 --plot build/demo/response.png "$sounds"/alsa/Front_Center.wav -o build/demo/low.wav
  say "how loud the mix is"
  build/demo/examples/loudness build/demo/mix.wav
  say "a recording sent by FM into build/demo/station.wav, and received into build/demo/received.wav"
  build/demo/examples/fm transmit "$sounds"/alsa/Front_Center.wav -o build/demo/station.wav
  build/demo/examples/fm receive build/demo/station.wav -o build/demo/received.wav --original "$sounds"/alsa/Front_Center.wav
  say "the keys of a telephone, dialled into build/demo/keys.wav"
  build/demo/examples/dtmf dial 0123456789 -o build/demo/keys.wav
  build/demo/examples/dtmf listen build/demo/keys.wav
  say "a test tone in build/demo/tone.wav, and what its samples hold; the windows' spectra in build/demo/windows.png"
  build/demo/examples/signals make tone -o build/demo/tone.wav
  build/demo/examples/signals windows --plot build/demo/windows.png
  say "the mix at 44.1 kHz in build/demo/cd.wav"
  build/demo/examples/resample build/demo/mix.wav --rate 44100 --output build/demo/cd.wav
  say "a recording in a room of noise that dies away, build/demo/room.wav, and how much later it is there"
  build/demo/examples/reverb "$sounds"/alsa/Front_Center.wav --seconds 0.8 -o build/demo/room.wav
  build/demo/examples/align "$sounds"/alsa/Front_Center.wav build/demo/room.wav
  say "noise added to a recording and taken off again in build/demo/denoised.wav"
  build/demo/examples/denoise "$sounds"/alsa/Front_Center.wav --add-noise -30 -o build/demo/denoised.wav
  say "an echo in build/demo/microphone.wav, cancelled in build/demo/cancelled.wav, its levels in build/demo/echo.png"
  build/demo/examples/echo make "$sounds"/alsa/Front_Center.wav -o build/demo/microphone.wav
  build/demo/examples/echo cancel "$sounds"/alsa/Front_Center.wav build/demo/microphone.wav -o build/demo/cancelled.wav --plot build/demo/echo.png
}
