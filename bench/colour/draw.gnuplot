# SPDX-License-Identifier: Apache-2.0
# Draws docs/pictures from the points that colour_curves has written: gnuplot -c draw.gnuplot POINTS PICTURES
points = ARG1
pictures = ARG2
set terminal pngcairo size 1080,400 font 'sans-serif,10'
set style data lines
set grid linecolor '#dddddd'
set key outside below
set bmargin 7

set output pictures.'/gamut.png'
set multiplot layout 1,3
set size square
set xrange [-120:120]
set yrange [-120:120]
set xlabel 'a* (green to red)'
set ylabel 'b* (blue to yellow)'
do for [slice = 0:2] {
  set title 'L* = '.word('30 55 80', slice + 1)
  plot for [i = 0:1] points.'/gamut' index 2 * slice + i title columnheader(1) \
    linecolor rgb word('#888888 #1f5fa8', i + 1)
}
unset multiplot

set output pictures.'/tone.png'
set multiplot layout 1,3
set xrange [0:255]
set yrange [0:100]
set xlabel 'value in the photo'
set ylabel 'device value, per cent'
do for [slider = 0:2] {
  set title word('Gamma Contrast Brightness', slider + 1)
  plot for [i = 0:4] points.'/tone' index 5 * slider + i title columnheader(1) \
    linecolor rgb word('#2166ac #67a9cf #333333 #ef8a62 #b2182b', i + 1)
}
unset multiplot

set output pictures.'/sharpening.png'
set size nosquare
set title 'An edge from 64 to 192'
set xrange [-10:10]
set yrange [0:255]
set xlabel 'dots from the edge'
set ylabel 'device value, as 0 … 255'
set key outside right
set bmargin 4
plot for [i = 0:7] points.'/sharpening' index i title columnheader(1) \
  linecolor rgb word('#888888 #a6cee3 #72b0d7 #3f90c5 #222222 #f3a15f #dd6b35 #b2182b', i + 1)
