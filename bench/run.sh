#!/usr/bin/env bash
# Times tessarine-cli against gdu and ncdu on one generated tree of about 500,000 files and
# prints medians, ratios and whether the targets are met. Warm (the tree in the page cache):
#   scan wall time  <= 0.4 x gdu and <= 1.1 x the fastest minimal walker
#   scan --hidden wall time <= 1.1 x the fastest minimal walker that takes hidden entries too
#   scan peak memory <= 0.5 x gdu      tree wall time <= 1.0 x scan
#   the folder tree built through the dashboard's section <= 1.1 x tessarine-cli tree
#   the desktop app's scan <= 1.2 x tessarine-cli scan
#   a saved scan, which also keeps every folder's size: <= 1.05 x the scan, memory <= 1.1 x
#   history compare of two saved scans of the tree <= 0.3 s
# Cold (the page cache dropped before every run; needs root and a writable
# /proc/sys/vm/drop_caches, else the round is skipped):
#   scan wall time <= 0.5 x gdu and <= 1.15 x the fastest minimal walker
# Hard links (warm), on a copy of the tree plus three `cp -al` copies of that copy, every file under
# four names:
#   scan and tree wall time <= 1.15 x the fastest minimal walker
#   scan and tree peak memory <= 1.3 x the same on four independent copies (`cp -a`, no links)
# The minimal walker (bench/minimal-walker) only lists and stats, at 2, 8 and 16 threads: the floor.
# Usage: bench/run.sh BUILD_DIR      (RUNS=n sets the number of timed warm runs per tool, default 5;
#                                     COLD_RUNS=n the number of cold ones, default 3;
#                                     ROUNDS="cold warm links import app" the rounds to run,
#                                     default all)
# The trees are made once and kept in /var/tmp/tessarine-bench; they are made again when the
# generator's version changes.
set -euo pipefail

build=$(cd "${1:?usage: bench/run.sh BUILD_DIR}" && pwd)
runs=${RUNS:-5}
cold_runs=${COLD_RUNS:-3}
rounds=" ${ROUNDS:-cold warm links import app} "
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
linked=$cache/linked     # the tree and three copies, all hard links to the tree's files
unlinked=$cache/unlinked # the same four again as independent files
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

# copies FOLDER CP_OPTION: FOLDER holds the tree and three copies of it, made with cp CP_OPTION,
# remade whenever the tree is.
copies() {
    local folder=$1 option=$2
    [[ -d $folder && $(cat "$folder.version" 2>/dev/null) == "$version-own-copy" ]] && return
    echo "Copying the tree four times into $folder (cp $option)..."
    rm -rf "$folder" "$folder.partial" "$folder.version" "$folder.items"
    mkdir "$folder.partial"
    # The first copy is always a copy of its own, and the others link to it, never to the tree:
    # the tree's files must keep a single name, or every round meant to be without links would
    # pay for them too.
    cp -a "$tree" "$folder.partial/tree"
    for copy in copy-1 copy-2 copy-3; do
        cp "$option" "$folder.partial/tree" "$folder.partial/$copy"
    done
    mv "$folder.partial" "$folder"
    find "$folder" -mindepth 1 | wc -l >"$folder.items"
    echo "$version-own-copy" >"$folder.version"
}
if [[ $rounds == *" links "* ]]; then
    copies "$linked" -al
    copies "$unlinked" -a
fi

# --- Measuring ----------------------------------------------------------------------------------
# command_of NAME: sets the array argv to the command that NAME stands for.
# Every command reads $target: the tree, or the hard-linked copies.
target=$tree
command_of() {
    case $1 in
    tessarine) argv=("$cli" scan "$target") ;;
    saved) argv=(env XDG_DATA_HOME="$work/data" "$cli" scan --save "$target") ;;
    compare) argv=(env XDG_DATA_HOME="$work/data" "$cli" history compare "${saved_ids[@]}") ;;
    gdu) argv=(gdu -n -p -c "$target") ;;
    ncdu) argv=(ncdu -o /dev/null "$target") ;;
    tree) argv=("$cli" tree "$target") ;;
    walker-*) argv=("$walker" "$target" "${1#walker-}") ;;
    unlinked-scan) argv=("$cli" scan "$unlinked") ;;
    unlinked-tree) argv=("$cli" tree "$unlinked") ;;
    hidden) argv=("$cli" scan --hidden "$target") ;;
    hidden-walker-*) argv=("$walker" "$target" "${1#hidden-walker-}" --hidden) ;;
    import) argv=("$cli" import "$ncdu_export") ;;
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

# fastest NAME...: the least median wall time among NAME..., set by table.
fastest() {
    local name
    for name in "$@"; do
        declare -n wall=wall_${name//-/_}
        echo "$wall"
        unset -n wall
    done | sort -g | head -1
}

# table ROUND RUNS ENTRIES NAME...: the medians of one round as a table; sets wall_ROUNDNAME and
# rss_ROUNDNAME (names with "-" turned into "_"), and best_ROUNDwalker to the fastest walker's wall.
table() {
    local round=$1 count=$2 entries=$3 name key
    shift 3
    echo
    printf '%-22s %10s %14s %13s\n' "median of $count runs" "wall (s)" "peak RSS (MB)" "bytes/entry"
    for name in "$@"; do
        key=${round}${name//-/_}
        declare -g "wall_$key=$(median "$work/$round$name" 1)" "rss_$key=$(median "$work/$round$name" 2)"
        declare -n wall=wall_$key rss=rss_$key
        awk -v label="${label[$name]}" -v wall="$wall" -v kilobytes="$rss" -v entries="$entries" 'BEGIN {
            printf "%-22s %10.2f %14.1f %13.0f\n", label, wall, kilobytes / 1024, kilobytes * 1024 / entries
        }'
        unset -n wall rss
    done
    # Only rounds that timed the walkers have a floor.
    [[ -v wall_${round}walker_2 ]] && declare -g "best_${round}walker=$(fastest "${walkers[@]/#/$round}")"
    return 0
}

walkers=(walker-2 walker-8 walker-16)
hidden_walkers=(hidden-walker-8 hidden-walker-16)
names=(tessarine saved gdu ncdu tree "${walkers[@]}" hidden "${hidden_walkers[@]}")
declare -A label=(
    [tessarine]="tessarine-cli scan"
    [saved]="scan --save"
    [compare]="history compare"
    [gdu]="gdu -n -p -c"
    [ncdu]="ncdu -o /dev/null"
    [tree]="tessarine-cli tree"
    [walker-2]="minimal walker, 2"
    [walker-8]="minimal walker, 8"
    [walker-16]="minimal walker, 16"
    [unlinked-scan]="scan, without links"
    [unlinked-tree]="tree, without links"
    [hidden]="tessarine-cli --hidden"
    [hidden-walker-8]="walker, hidden, 8"
    [hidden-walker-16]="walker, hidden, 16"
)

# warm ROUND NAME...: warms the page cache, then times each of NAME $runs times, alternating.
warm() {
    local round=$1 run name argv
    shift
    echo
    echo "Warming the cache..."
    for name in "$@"; do
        command_of "$name"
        "${argv[@]}" >/dev/null 2>&1 </dev/null || true
    done
    echo "Timing $runs runs of each, alternating..."
    for ((run = 1; run <= runs; run++)); do
        for name in "$@"; do
            measure "$name" "$round"
        done
    done
}

# --- Cold cache ---------------------------------------------------------------------------------
# A first scan of a disk finds nothing in the page cache: every folder and every inode is read
# from the disk, and the walk is as fast as the requests it keeps in flight.
drop_cache() { sync && echo 3 >/proc/sys/vm/drop_caches; } 2>/dev/null
cold_names=(tessarine gdu ncdu "${walkers[@]}")
echo
if [[ $rounds != *" cold "* ]]; then
    echo "Cold cache: not asked for."
elif [[ $EUID -eq 0 ]] && drop_cache; then
    echo "Cold cache: timing $cold_runs runs of each, the page cache dropped before every run..."
    for ((run = 1; run <= cold_runs; run++)); do
        for name in "${cold_names[@]}"; do
            drop_cache
            measure "$name" cold_
        done
    done
    table cold_ "$cold_runs" "$items" "${cold_names[@]}"
    cold_vs_gdu=$(ratio "$wall_cold_tessarine" "$wall_cold_gdu")
    cold_vs_walker=$(ratio "$wall_cold_tessarine" "$best_cold_walker")
    echo
    echo "$(verdict "$cold_vs_gdu" 0.5)  cold scan wall time <= 0.5 x gdu ($cold_vs_gdu)"
    echo "$(verdict "$cold_vs_walker" 1.15)  cold scan wall time <= 1.15 x the minimal walker ($cold_vs_walker, fastest $best_cold_walker s)"
else
    echo "Cold cache: skipped, dropping the page cache is not permitted here (it needs root and a"
    echo "writable /proc/sys/vm/drop_caches)."
fi

# --- Warm cache ---------------------------------------------------------------------------------
if [[ $rounds == *" warm "* ]]; then
    warm "" "${names[@]}"
    table "" "$runs" "$items" "${names[@]}"
    wall_vs_gdu=$(ratio "$wall_tessarine" "$wall_gdu")
    wall_vs_walker=$(ratio "$wall_tessarine" "$best_walker")
    rss_vs_gdu=$(ratio "$rss_tessarine" "$rss_gdu")
    tree_vs_scan=$(ratio "$wall_tree" "$wall_tessarine")
    best_hidden_walker=$(fastest "${hidden_walkers[@]}")
    hidden_vs_walker=$(ratio "$wall_hidden" "$best_hidden_walker")
    echo
    echo "tessarine/gdu     wall $wall_vs_gdu   memory $rss_vs_gdu"
    echo "tessarine/ncdu    wall $(ratio "$wall_tessarine" "$wall_ncdu")   memory $(ratio "$rss_tessarine" "$rss_ncdu")"
    echo "tessarine/walker  wall $wall_vs_walker (the fastest minimal walker, $best_walker s)"
    echo "tree/scan         wall $tree_vs_scan"
    echo "--hidden/walker   wall $hidden_vs_walker (the fastest walker taking hidden entries, $best_hidden_walker s)"
    echo
    echo "$(verdict "$wall_vs_gdu" 0.4)  scan wall time <= 0.4 x gdu ($wall_vs_gdu)"
    echo "$(verdict "$wall_vs_walker" 1.1)  scan wall time <= 1.1 x the minimal walker ($wall_vs_walker)"
    echo "$(verdict "$hidden_vs_walker" 1.1)  scan --hidden wall time <= 1.1 x the walker taking hidden entries ($hidden_vs_walker)"
    echo "$(verdict "$rss_vs_gdu" 0.5)  scan peak memory <= 0.5 x gdu ($rss_vs_gdu)"
    echo "$(verdict "$tree_vs_scan" 1.0)  tree wall time <= 1.0 x scan ($tree_vs_scan)"
fi

# --- Folder sizes of saved scans ------------------------------------------------------------------
if [[ $rounds == *" warm "* ]]; then
    saved_wall=$(ratio "$wall_saved" "$wall_tessarine")
    saved_rss=$(ratio "$rss_saved" "$rss_tessarine")
    echo "$(verdict "$saved_wall" 1.05)  saved scan, with every folder's size, wall time <= 1.05 x scan ($saved_wall)"
    echo "$(verdict "$saved_rss" 1.1)  saved scan peak memory <= 1.1 x scan ($saved_rss)"
    mapfile -t saved_ids < <(ls "$work/data/Tessarine" | sed -n 's/^scan_\(.*\)\.json$/\1/p' | head -2)
    for ((run = 1; run <= runs; run++)); do
        measure compare
    done
    table "" "$runs" "$items" compare
    echo "$(verdict "$wall_compare" 0.3)  history compare of two saved scans <= 0.3 s ($wall_compare s)"
    echo "  folder sizes file $(stat -c %s "$work/data/Tessarine/scan_${saved_ids[0]}.folders") bytes," \
        "history file $(stat -c %s "$work/data/Tessarine/scan_${saved_ids[0]}.json") bytes"
fi

# --- Hard links ---------------------------------------------------------------------------------
# Snapshot backups keep every unchanged file as one more name of the same file, which is counted
# once: the walk must not slow down, nor grow much, for telling the names apart.
if [[ $rounds == *" links "* ]]; then
    target=$linked
    linked_items=$(cat "$linked.items")
    echo
    echo "Hard links: $linked, a copy of the tree and three cp -al copies of it, $linked_items entries"
    linked_names=(tessarine tree unlinked-scan unlinked-tree gdu ncdu "${walkers[@]}")
    warm linked_ "${linked_names[@]}"
    table linked_ "$runs" "$linked_items" "${linked_names[@]}"
    links_scan_vs_walker=$(ratio "$wall_linked_tessarine" "$best_linked_walker")
    links_tree_vs_walker=$(ratio "$wall_linked_tree" "$best_linked_walker")
    links_scan_memory=$(ratio "$rss_linked_tessarine" "$rss_linked_unlinked_scan")
    links_tree_memory=$(ratio "$rss_linked_tree" "$rss_linked_unlinked_tree")
    echo
    echo "scan/gdu          wall $(ratio "$wall_linked_tessarine" "$wall_linked_gdu")   memory $(ratio "$rss_linked_tessarine" "$rss_linked_gdu")"
    echo "scan/ncdu         wall $(ratio "$wall_linked_tessarine" "$wall_linked_ncdu")   memory $(ratio "$rss_linked_tessarine" "$rss_linked_ncdu")"
    echo
    echo "$(verdict "$links_scan_vs_walker" 1.15)  hard-linked scan wall time <= 1.15 x the minimal walker ($links_scan_vs_walker, fastest $best_linked_walker s)"
    echo "$(verdict "$links_tree_vs_walker" 1.15)  hard-linked tree wall time <= 1.15 x the minimal walker ($links_tree_vs_walker)"
    echo "$(verdict "$links_scan_memory" 1.3)  hard-linked scan peak memory <= 1.3 x without links ($links_scan_memory)"
    echo "$(verdict "$links_tree_memory" 1.3)  hard-linked tree peak memory <= 1.3 x without links ($links_tree_memory)"
    target=$tree
fi

if [[ $rounds == *" import "* ]]; then
    # --- Importing a scan made elsewhere ---------------------------------------------------------
    # ncdu's export of the same tree, made once beside it, read back as a result (with its folder
    # tree) against a scan of the tree itself.
    ncdu_export=$cache/ncdu-export.json
    if [[ ! -s $ncdu_export || $ncdu_export -ot $cache/version ]]; then
        ncdu -o "$ncdu_export.partial" "$tree" 2>/dev/null && mv "$ncdu_export.partial" "$ncdu_export"
    fi
    echo
    echo "Importing ncdu's export of the tree ($(($(stat -c %s "$ncdu_export") / 1048576)) MB), $runs runs..."
    for ((run = 1; run <= runs; run++)); do
        measure tessarine import_
        measure import import_
    done
    label[import]="tessarine-cli import"
    table import_ "$runs" "$items" tessarine import
    import_vs_scan=$(ratio "$wall_import_import" "$wall_import_tessarine")
    import_memory_limit=$(awk -v scan="$rss_import_tessarine" -v bytes="$(stat -c %s "$ncdu_export")" \
        'BEGIN { printf "%.0f", scan + bytes / 1024 }')
    echo
    echo "$(verdict "$import_vs_scan" 1.5)  import wall time <= 1.5 x scan ($import_vs_scan)"
    echo "$(verdict "$rss_import_import" "$import_memory_limit")  import peak memory <= scan's + the file's size ($((rss_import_import / 1024)) MB, limit $((import_memory_limit / 1024)) MB)"
fi

[[ $rounds == *" app "* ]] || exit 0

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
    if [[ -n ${wall_tree:-} ]]; then # timed in the warm round
        section_vs_cli=$(ratio "$(awk '/^build-seconds/ { print $2 }' "$work/folders")" "$wall_tree")
        echo "$(verdict "$section_vs_cli" 1.1)  section build <= 1.1 x tessarine-cli tree ($section_vs_cli)"
    fi
fi

offscreen "Opening the dashboard" "$dashboard"
offscreen "A history of 10,000 scans: start, a scan saved by the command line, memory, scrolling, searching and sorting" "$history" "$cli"
