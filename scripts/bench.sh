#!/usr/bin/env bash
# Builds the benchmarks (Release, in build/bench or BENCH_BUILD_DIR), runs them all and prints one
# table on standard output: measure, value, target, ok / not ok, under a line with the date and the
# machine, ready to paste into the README. Progress goes to standard error. Times are medians of
# BENCH_REPETITIONS runs (default 5); ratios compare measures taken in the same run, because a
# shared machine is noisy. Exits non-zero when a benchmark could not run.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/deps.sh >&2
dir=${BENCH_BUILD_DIR:-build/bench}
results=$dir/results
repetitions=${BENCH_REPETITIONS:-5}

echo "== Building $dir" >&2
cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE=Release -DTROVANE_BUILD_TESTS=OFF > /dev/null
if ! cmake --build "$dir" -j "$(nproc)" --target alarms_bench common_bench qt_bench net_bench > "$dir/build.log" 2>&1; then
    tail -n 40 "$dir/build.log" >&2
    exit 1
fi

rm -rf "$results"
mkdir -p "$results"
failed=0
# run NAME EXECUTABLE FILTER [REPETITIONS]: one CSV per group of benchmarks that are compared. The
# repetitions of a group are interleaved at random, so that a change of load on the machine weighs
# on all of them alike.
run() {
    echo "== Running $1" >&2
    if ! QT_QPA_PLATFORM=offscreen "$dir/bench/$2" --benchmark_filter="$3" --benchmark_format=csv \
        --benchmark_repetitions="${4:-$repetitions}" --benchmark_enable_random_interleaving=true \
        --benchmark_report_aggregates_only=true \
        > "$results/$1.csv" 2> "$results/$1.log"; then
        echo "   $1 failed:" >&2
        tail -n 5 "$results/$1.log" >&2
        failed=1
    fi
}
run headless alarms/alarms_bench '^HeadlessRefresh/'
run qt_list qt/qt_bench '^(QtPanelRefresh|PlainTreeRefresh)/'
run startup qt/qt_bench '^(DialogFirstFrame|MinimalWindowFirstFrame)'
run commands common/common_bench '^Commands'
run storm alarms/alarms_bench '^AlarmStorm' 3
run network net/net_bench '^(Net|InProcess)(Read|Write)RoundTrip'

cpu=$(awk -F': ' '/^model name/ { print $2; exit }' /proc/cpuinfo)
echo "Measured $(date +%Y-%m-%d) on $(nproc) cores, ${cpu:-unknown CPU}; medians of $repetitions runs (the storm: 3)."
echo
awk -F, '
    # Each file starts with its header; the rows kept are the medians, named as Google Benchmark
    # names them ("HeadlessRefresh/1000/real_time_median") and kept as "HeadlessRefresh/1000".
    /^name,/ {
        for (i = 1; i <= NF; ++i) { header[i] = $i; gsub(/"/, "", header[i]) }
        next
    }
    /_median"?,/ {
        name = $1
        gsub(/"/, "", name)
        sub(/_median$/, "", name)
        sub(/\/iterations:[0-9]+/, "", name)
        sub(/\/real_time$/, "", name)
        for (i = 2; i <= NF; ++i) value[name, header[i]] = $i
        unit = value[name, "time_unit"]
        value[name, "ms"] = value[name, "real_time"] * (unit == "ns" ? 1e-6 : unit == "us" ? 1e-3 : unit == "s" ? 1e3 : 1)
    }
    function measured(name) { return ((name, "ms") in value) && value[name, "error_occurred"] != "true" }
    function row(label, shown, target, pass) {
        printf "| %s | %s | %s | %s |\n", label, shown, target, target == "" ? "" : (pass ? "ok" : "not ok")
    }
    # One measure: a column of a benchmark times factor, checked against limit when there is a target.
    function single(label, name, column, factor, format, target, limit,    v) {
        if (!measured(name)) { row(label, "failed", target, 0); return }
        v = value[name, column] * factor
        row(label, sprintf(format, v), target, target == "" || v <= limit)
    }
    # The same column of two benchmarks of one run, divided.
    function ratio(label, a, b, column, target, limit,    v) {
        if (!measured(a) || !measured(b) || value[b, column] == 0) { row(label, "failed", target, 0); return }
        v = value[a, column] / value[b, column]
        row(label, sprintf("%.2f", v), target, target == "" || v <= limit)
    }
    END {
        print "| Measure | Value | Target | |"
        print "|---|---|---|---|"
        single("Headless alarm refresh, 1,000 rows", "HeadlessRefresh/1000", "ms", 1, "%.2f ms")
        single("Headless alarm refresh, 10,000 rows", "HeadlessRefresh/10000", "ms", 1, "%.2f ms", "<= 16.7 ms", 16.7)
        single("Headless alarm refresh, 30,000 rows", "HeadlessRefresh/30000", "ms", 1, "%.2f ms")
        single("Headless time per row, 1,000 rows", "HeadlessRefresh/1000", "per_row", 1e6, "%.3f us")
        single("Headless time per row, 30,000 rows", "HeadlessRefresh/30000", "per_row", 1e6, "%.3f us")
        ratio("Headless time per row, 30,000 / 1,000 rows", "HeadlessRefresh/30000", "HeadlessRefresh/1000", "per_row", "<= 1.3", 1.3)
        single("Qt alarm refresh, 1,000 rows", "QtPanelRefresh/1000", "ms", 1, "%.2f ms")
        single("Plain QTreeWidget, 1,000 rows", "PlainTreeRefresh/1000", "ms", 1, "%.2f ms")
        ratio("Qt alarm refresh / plain QTreeWidget, 1,000 rows", "QtPanelRefresh/1000", "PlainTreeRefresh/1000", "ms")
        single("Qt alarm refresh, 10,000 rows", "QtPanelRefresh/10000", "ms", 1, "%.2f ms")
        single("Plain QTreeWidget, 10,000 rows", "PlainTreeRefresh/10000", "ms", 1, "%.2f ms")
        ratio("Qt alarm refresh / plain QTreeWidget, 10,000 rows", "QtPanelRefresh/10000", "PlainTreeRefresh/10000", "ms", "<= 0.5", 0.5)
        single("Control dialog start-up to first frame", "DialogFirstFrame", "ms", 1, "%.2f ms")
        single("Minimal Qt window to first frame", "MinimalWindowFirstFrame", "ms", 1, "%.2f ms")
        ratio("Dialog / minimal window start-up", "DialogFirstFrame", "MinimalWindowFirstFrame", "ms")
        single("Commands per second, tracing off", "CommandsUntraced", "items_per_second", 1, "%.0f")
        single("Commands per second, tracing to a file", "CommandsTracedToFile", "items_per_second", 1, "%.0f")
        single("Command round trips per second through the broker, read", "NetReadRoundTrip", "items_per_second", 1, "%.0f")
        single("Command round trip through the broker, read, p50", "NetReadRoundTrip", "p50_us", 1, "%.0f us")
        single("Command round trip through the broker, read, p99", "NetReadRoundTrip", "p99_us", 1, "%.0f us")
        single("Command round trips per second in-process, read", "InProcessReadRoundTrip", "items_per_second", 1, "%.0f")
        single("Command round trip in-process, read, p50", "InProcessReadRoundTrip", "p50_us", 1, "%.1f us")
        single("Command round trip in-process, read, p99", "InProcessReadRoundTrip", "p99_us", 1, "%.1f us")
        single("Command round trips per second through the broker, notified write", "NetWriteRoundTrip", "items_per_second", 1, "%.0f")
        single("Command round trip through the broker, notified write, p50", "NetWriteRoundTrip", "p50_us", 1, "%.0f us")
        single("Command round trip through the broker, notified write, p99", "NetWriteRoundTrip", "p99_us", 1, "%.0f us")
        single("Command round trips per second in-process, notified write", "InProcessWriteRoundTrip", "items_per_second", 1, "%.0f")
        ratio("Round trip through the broker / in-process, read", "NetReadRoundTrip", "InProcessReadRoundTrip", "ms")
        single("Alarm storm: 20,000 signals, 1,000 changes pumped per 100", "AlarmStorm", "ms", 1, "%.0f ms")
        single("Alarm storm: list rebuilds per notification batch", "AlarmStorm", "rebuilds_per_batch", 1, "%.2f", "<= 1", 1)
        single("Alarm storm: rows differing from the server", "AlarmStorm", "rows_differing", 1, "%d", "0", 0)
    }
' "$results"/*.csv

exit "$failed"
