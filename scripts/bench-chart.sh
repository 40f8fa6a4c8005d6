#!/bin/sh
# Draws payload size against time per call, the library next to the bare
# libdbus floor, from payload_benchmark's JSON output. Needs jq and gnuplot.
#   build/benchmarks/payload_benchmark --benchmark_min_time=0.2 --benchmark_repetitions=3 \
#       --benchmark_format=json > bench.json
#   scripts/bench-chart.sh bench.json bench.png
set -eu
input=${1:?usage: bench-chart.sh BENCH.json [OUT.png]}
output=${2:-benchmark-chart.png}
data=$(mktemp -d)
trap 'rm -rf "$data"' EXIT

# One line per single-thread benchmark: name, payload bytes, median time in ms.
jq -r '[.benchmarks[] | select(.run_type == "iteration" and .threads == 1)]
       | group_by(.run_name)[]
       | [.[0].run_name, .[0].payload, (map(.real_time) | sort | .[(length / 2) | floor]) / 1e6]
       | @tsv' "$input" | sed 's#/real_time##' > "$data/all"

series() {  # series FILE PATTERN...: the rows whose name matches, by payload size
  file=$1; shift
  for pattern in "$@"; do grep -E "^$pattern	" "$data/all" || true; done | sort -t '	' -k2,2n > "$data/$file"
}
series floor 'Bare/(100B|64KiB|4MiB)'
series pass 'PassThrough/[^	]*'
series typed 'Typed/(Channels500|Channels5000|ProgramMapWeek)'
# Bare transfer plus jsoncpp parse of the same reply text.
for name in Channels500 Channels5000 ProgramMapWeek; do
  bare=$(grep -E "^Bare/$name	" "$data/all" || true)
  parse=$(grep -E "^Parse/$name	" "$data/all" || true)
  [ -n "$bare" ] && [ -n "$parse" ] || continue
  printf '%s\t%s\n' "$bare" "$parse" | awk -F '\t' '{ printf "%s\t%s\t%s\n", $1, $2, $3 + $6 }'
done | sort -t '	' -k2,2n > "$data/ceiling"

gnuplot <<PLOT
set terminal pngcairo size 800,500 font ",10"
set output "$output"
set datafile separator "\t"
set logscale xy
set xlabel "reply size (bytes)"
set ylabel "time per call (ms)"
set key top left
set grid
plot "$data/floor" using 2:3 with linespoints title "bare libdbus round trip (request = reply size)", \
     "$data/pass" using 2:3 with linespoints title "library pass-through (request = reply size)", \
     "$data/ceiling" using 2:3 with linespoints title "bare transfer + jsoncpp parse", \
     "$data/typed" using 2:3 with linespoints title "library typed call (line-ups, week map)"
PLOT
echo "wrote $output"
