#!/bin/sh
# Draws threads_benchmark's JSON output: the fast call alone and beside a
# slow one, and the wall time per call of a 20 ms member on one and four
# threads. Needs jq and gnuplot.
#   build/benchmarks/threads_benchmark --benchmark_repetitions=5 --benchmark_format=json > threads.json
#   scripts/threads-chart.sh threads.json benchmarks/threads-chart.png
set -eu
input=${1:?usage: threads-chart.sh THREADS.json [OUT.png]}
output=${2:-threads-chart.png}
data=$(mktemp -d)
trap 'rm -rf "$data"' EXIT

median() {  # median FILTER: the median over the repetitions of what FILTER picks
  jq -r "[.benchmarks[] | select(.run_type == \"iteration\") | $1] | sort | .[(length / 2) | floor]" "$input"
}
alone=$(median 'select(.run_name | startswith("Threads/FastBesideSlow")) | .alone * 1e6')
beside=$(median 'select(.run_name | startswith("Threads/FastBesideSlow")) | .beside_slow * 1e6')
one=$(median 'select((.run_name | startswith("Threads/TwentyMs")) and .threads == 1) | .real_time / 1e6')
four=$(median 'select((.run_name | startswith("Threads/TwentyMs")) and .threads == 4) | .real_time / 1e6')
printf '"alone"\t%s\n"beside a 400 ms call"\t%s\n' "$alone" "$beside" > "$data/fast"
printf '"1 thread"\t%s\n"4 threads"\t%s\n' "$one" "$four" > "$data/overlap"

gnuplot <<PLOT
set terminal pngcairo size 800,360 font ",10"
set output "$output"
set datafile separator "\t"
set style data histograms
set style fill solid 0.6
set boxwidth 0.6
set yrange [0:*]
set grid ytics
unset key
set multiplot layout 1,2
set title "fast call (µs per call)"
plot "$data/fast" using 2:xtic(1)
set title "member answered after 20 ms (ms of wall time per call)"
plot "$data/overlap" using 2:xtic(1)
unset multiplot
PLOT
echo "wrote $output"
