#!/bin/sh
# Draws service_benchmark's turns as bars: the service's call next to the
# same bytes served bare (and SetZipCode with a large map next to an empty
# one), medians of the repetitions. Needs jq and gnuplot.
#   build/benchmarks/service_benchmark --benchmark_min_time=1 --benchmark_repetitions=5 \
#       --benchmark_format=json > service.json
#   scripts/service-bench-chart.sh service.json benchmarks/service-chart.png
set -eu
input=${1:?usage: service-bench-chart.sh BENCH.json [OUT.png]}
output=${2:-service-chart.png}
data=$(mktemp)
trap 'rm -f "$data"' EXIT

# One line per benchmark: its name, then the medians of its two sides in ms.
jq -r '[.benchmarks[] | select(.run_type == "iteration")]
       | group_by(.run_name)[]
       | def median(f): (map(f) | sort | .[(length / 2) | floor]);
         [(.[0].run_name | sub("/.*"; "")),
          median(.first_ms), median(.second_ms)]
       | @tsv' "$input" > "$data"

gnuplot <<PLOT
set terminal pngcairo size 900,480 font ",10" noenhanced
set xtics rotate by -15
set output "$output"
set title "zunde-service through the library, in turns (medians)"
set style data histograms
set style histogram clustered gap 1
set style fill solid 0.8 border -1
set logscale y
set ylabel "ms per call"
set key top left
set datafile separator "\t"
plot "$data" using 2:xtic(1) title "service (or large map)", "" using 3 title "same bytes bare (or empty map)"
PLOT
