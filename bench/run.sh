#!/usr/bin/env bash
# Times tessarine-cli against gdu and ncdu on one generated tree of about 500,000 files and
# prints medians, ratios and whether the targets are met. Warm (the tree in the page cache):
#   scan wall time  <= 0.4 x gdu and <= 1.1 x the fastest minimal walker
#   scan peak memory <= 0.5 x gdu      tree wall time <= 1.0 x scan
#   the folder tree built through the dashboard's section <= 1.1 x tessarine-cli tree
#   the desktop app's scan <= 1.2 x tessarine-cli scan
# Cold (the page cache dropped before every run; needs root and a writable
# /proc/sys/vm/drop_caches, else the round is skipped):
#   scan wall time <= 0.5 x gdu and <= 1.15 x the fastest minimal walker
# The minimal walker (bench/minimal-walker) only lists and stats, at 2, 8 and 16 threads: the floor.
# Usage: bench/run.sh BUILD_DIR      (RUNS=n sets the number of timed warm runs per tool, default 5;
#                                     COLD_RUNS=n the number of cold ones, default 3)
# The tree is generated once and kept in /var/tmp/tessarine-bench; it is made again when the
# generator's version changes.
set -euo pipefail

build=$(cd "${1:?usage: bench/run.sh BUILD_DIR}" && pwd)
runs=${RUNS:-5}
cold_runs=${COLD_RUNS:-3}
cli=$build/tools/tessarine-cli
generator=$build/bench/generate-tree
walker=$build/bench/minimal-walker
responsiveness=$build/bench/responsiveness/tessarine-responsiveness
treemap=$build/bench/treemap/tessarine-treemap-bench
folders=$build/bench/treemap/tessarine-folder-analysis-bench
dashboard=$build/bench/dashboard/tessarine-dashboard-bench
history=$build/bench/history/tessarine-history-bench
cache=/var/tmp/tessarine-bench
tree=$cache/tree
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for tool in "$cli" "$generator" "$walker"; do
    [[ -x $tool ]] || { echo "missing $tool: build first" >&2; exit 1; }
done
for tool in gdu ncdu /usr/bin/time; do
    command -v "$tool" >/dev/null || { echo "missing $tool: run scripts/install-deps.sh" >&2; exit 1; }
done

# --- The tree -----------------------------------------------------------------------------------
version=$("$generator" --version)
if [[ ! -d $tree || $(cat "$cache/version" 2>/dev/null) != "$version" ]]; then
    echo "Generating the benchmark tree in $tree (generator version $version)..."
    mkdir -p "$cache"
    rm -rf "$tree" "$tree.partial" "$cache/version" "$cache/summary"
    # Written beside the final place first, so an interrupted run never leaves a tree that looks
    # complete.
    "$generator" "$tree.partial" >"$cache/summary"
    mv "$tree.partial" "$tree"
    find "$tree" -mindepth 1 | wc -l >"$cache/items"
    echo "$version" >"$cache/version"
fi
items=$(cat "$cache/items")
echo "Tree: $tree"
sed 's/^/  /' "$cache/summary"
echo "  entries $items"

# --- Measuring ----------------------------------------------------------------------------------
# command_of NAME: sets the array argv to the command that NAME stands for.
command_of() {
    case $1 in
    tessarine) argv=("$cli" scan "$tree") ;;
    gdu) argv=(gdu -n -p -c "$tree") ;;
    ncdu) argv=(ncdu -o /dev/null "$tree") ;;
    tree) argv=("$cli" tree "$tree") ;;
    walker-*) argv=("$walker" "$tree" "${1#walker-}") ;;
    esac
}

# measure NAME [ROUND]: one run under /usr/bin/time -v; appends "seconds kilobytes" to
# $work/ROUNDNAME. Output is thrown away: each tool writes its report, which is not what is
# measured.
measure() {
    local name=$1 round=${2:-} argv
    command_of "$name"
    /usr/bin/time -v -o "$work/time" "${argv[@]}" >/dev/null 2>"$work/stderr" </dev/null || {
        echo "$name failed:" >&2
        cat "$work/stderr" "$work/time" >&2
        exit 1
    }
    awk -F': ' '
        /Elapsed \(wall clock\)/ {
            n = split($2, part, ":"); seconds = 0
            for (i = 1; i <= n; i++) seconds = seconds * 60 + part[i]
        }
        /Maximum resident set size/ { kilobytes = $2 }
        END { print seconds, kilobytes }' "$work/time" >>"$work/$round$name"
}

# median FILE COLUMN
median() {
    sort -g -k"$2","$2" "$1" | awk -v column="$2" '{ value[NR] = $column }
        END { print (NR % 2) ? value[(NR + 1) / 2] : (value[NR / 2] + value[NR / 2 + 1]) / 2 }'
}

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", (b > 0) ? a / b : 0 }'; }
verdict() { awk -v value="$1" -v limit="$2" 'BEGIN { print (value <= limit) ? "PASS" : "MISS" }'; }

# table ROUND RUNS NAME...: the medians of one round as a table; sets wall_ROUNDNAME and
# rss_ROUNDNAME (names with "-" turned into "_"), and best_ROUNDwalker to the fastest walker's wall.
table() {
    local round=$1 count=$2 name key
    shift 2
    echo
    printf '%-22s %10s %14s %13s\n' "median of $count runs" "wall (s)" "peak RSS (MB)" "bytes/entry"
    for name in "$@"; do
        key=${round}${name//-/_}
        declare -g "wall_$key=$(median "$work/$round$name" 1)" "rss_$key=$(median "$work/$round$name" 2)"
        declare -n wall=wall_$key rss=rss_$key
        awk -v label="${label[$name]}" -v wall="$wall" -v kilobytes="$rss" -v entries="$items" 'BEGIN {
            printf "%-22s %10.2f %14.1f %13.0f\n", label, wall, kilobytes / 1024, kilobytes * 1024 / entries
        }'
        unset -n wall rss
    done
    declare -g "best_${round}walker=$(for name in "${walkers[@]}"; do
        declare -n wall=wall_${round}${name//-/_}
        echo "$wall"
        unset -n wall
    done | sort -g | head -1)"
}

walkers=(walker-2 walker-8 walker-16)
names=(tessarine gdu ncdu tree "${walkers[@]}")
declare -A label=(
    [tessarine]="tessarine-cli scan"
    [gdu]="gdu -n -p -c"
    [ncdu]="ncdu -o /dev/null"
    [tree]="tessarine-cli tree"
    [walker-2]="minimal walker, 2"
    [walker-8]="minimal walker, 8"
    [walker-16]="minimal walker, 16"
)

# --- Cold cache ---------------------------------------------------------------------------------
# A first scan of a disk finds nothing in the page cache: every folder and every inode is read
# from the disk, and the walk is as fast as the requests it keeps in flight.
drop_cache() { sync && echo 3 >/proc/sys/vm/drop_caches; } 2>/dev/null
cold_names=(tessarine gdu ncdu "${walkers[@]}")
echo
if [[ $EUID -eq 0 ]] && drop_cache; then
    echo "Cold cache: timing $cold_runs runs of each, the page cache dropped before every run..."
    for ((run = 1; run <= cold_runs; run++)); do
        for name in "${cold_names[@]}"; do
            drop_cache
            measure "$name" cold_
        done
    done
    table cold_ "$cold_runs" "${cold_names[@]}"
    cold_vs_gdu=$(ratio "$wall_cold_tessarine" "$wall_cold_gdu")
    cold_vs_walker=$(ratio "$wall_cold_tessarine" "$best_cold_walker")
    echo
    echo "$(verdict "$cold_vs_gdu" 0.5)  cold scan wall time <= 0.5 x gdu ($cold_vs_gdu)"
    echo "$(verdict "$cold_vs_walker" 1.15)  cold scan wall time <= 1.15 x the minimal walker ($cold_vs_walker, fastest $best_cold_walker s)"
else
    echo "Cold cache: skipped, dropping the page cache is not permitted here (it needs root and a"
    echo "writable /proc/sys/vm/drop_caches)."
fi

echo
echo "Warming the cache..."
for name in "${names[@]}"; do
    command_of "$name"
    "${argv[@]}" >/dev/null 2>&1 </dev/null || true
done

echo "Timing $runs runs of each, alternating..."
for ((run = 1; run <= runs; run++)); do
    for name in "${names[@]}"; do
        measure "$name"
    done
done

# --- Warm cache ---------------------------------------------------------------------------------
table "" "$runs" "${names[@]}"
wall_vs_gdu=$(ratio "$wall_tessarine" "$wall_gdu")
wall_vs_walker=$(ratio "$wall_tessarine" "$best_walker")
rss_vs_gdu=$(ratio "$rss_tessarine" "$rss_gdu")
tree_vs_scan=$(ratio "$wall_tree" "$wall_tessarine")
echo
echo "tessarine/gdu     wall $wall_vs_gdu   memory $rss_vs_gdu"
echo "tessarine/ncdu    wall $(ratio "$wall_tessarine" "$wall_ncdu")   memory $(ratio "$rss_tessarine" "$rss_ncdu")"
echo "tessarine/walker  wall $wall_vs_walker (the fastest minimal walker, $best_walker s)"
echo "tree/scan         wall $tree_vs_scan"
echo
echo "$(verdict "$wall_vs_gdu" 0.4)  scan wall time <= 0.4 x gdu ($wall_vs_gdu)"
echo "$(verdict "$wall_vs_walker" 1.1)  scan wall time <= 1.1 x the minimal walker ($wall_vs_walker)"
echo "$(verdict "$rss_vs_gdu" 0.5)  scan peak memory <= 0.5 x gdu ($rss_vs_gdu)"
echo "$(verdict "$tree_vs_scan" 1.0)  tree wall time <= 1.0 x scan ($tree_vs_scan)"

if [[ -x $responsiveness ]]; then
    echo
    echo "Responsiveness of the desktop app while it scans:"
    "$responsiveness" "$tree" "$cli"
fi

# offscreen TITLE COMMAND...: an interface benchmark, drawn by the software renderer offscreen
# (what machines without a GPU and the tests use); skipped when the core-only build lacks it.
offscreen() {
    local title=$1
    shift
    [[ -x $1 ]] || return 0
    echo
    echo "$title (software renderer, offscreen):"
    QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software "$@"
}

offscreen "Drawing a folder treemap level of 5,000 folders" "$treemap"

if [[ -x $folders ]]; then
    offscreen "Folder analysis of the benchmark tree in the dashboard's section" \
        "$folders" "$tree" >"$work/folders"
    grep -v '^build-seconds' "$work/folders"
    section_vs_cli=$(ratio "$(awk '/^build-seconds/ { print $2 }' "$work/folders")" "$wall_tree")
    echo "$(verdict "$section_vs_cli" 1.1)  section build <= 1.1 x tessarine-cli tree ($section_vs_cli)"
fi

offscreen "Opening the dashboard" "$dashboard"
offscreen "A history of 10,000 scans: start, a scan saved by the command line, memory, scrolling, searching and sorting" "$history" "$cli"
