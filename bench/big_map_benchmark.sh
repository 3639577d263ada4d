#!/usr/bin/env bash
# Maps larger than memory: makes two Float32 GeoTIFFs of SIZE x SIZE cells (default
# 32768, 4 GiB each in memory, about 5 % NoData), then runs on them, under --memory
# BUDGET (default 1G), the formula `if i1 > 0 then i1 * 2 + i2 else 0` and a 5 x 5
# `nbsum`, each saved as a tiled DEFLATE GeoTIFF, and prints each run's peak resident
# memory and whole-process time. When GRASS is installed, the same work is run in the
# same set-up through r.mapcalc and r.neighbors (reading the same files, writing the
# same kind of GeoTIFF) and the ratios are printed; without it that peer is skipped.
#
#   big_map_benchmark.sh BUILD_DIR [--size SIZE] [--memory BUDGET] [--processors N]
#                        [--folder DIR] [--install-peer]
#
# --install-peer installs grass-core with apt-get first (this benchmark's own set-up;
# nothing else installs it). The folder (default a fresh one under TMPDIR) needs room
# for the inputs and outputs: about 4 x SIZE^2 x 4 bytes before compression.
set -eu
build=${1:?usage: big_map_benchmark.sh BUILD_DIR [options]}
shift
size=32768 budget=1G processors=2 folder="" install=0
while [ $# -gt 0 ]; do
    case "$1" in
    --size) size=$2; shift ;;
    --memory) budget=$2; shift ;;
    --processors) processors=$2; shift ;;
    --folder) folder=$2; shift ;;
    --install-peer) install=1 ;;
    *) echo "unknown option $1" >&2; exit 2 ;;
    esac
    shift
done
here=$(cd "$(dirname "$0")" && pwd)
vrk="$(cd "$build" && pwd)/bin/vrk"
if [ -z "$folder" ]; then
    folder=$(mktemp -d)
    trap 'rm -rf "$folder"' EXIT
fi
mkdir -p "$folder"
cd "$folder"
if [ "$install" = 1 ] && ! command -v grass > /dev/null; then
    sudo apt-get install -y --no-install-recommends grass-core > /dev/null
fi

# "NAME: PEAK MiB, SECONDS s" for the command after NAME; the figures are kept in
# NAME.figures for the ratios.
measure() {
    local name="$1"
    shift
    /usr/bin/time -f "%M %e" -o "$name.time" "$@" > "$name.log" 2>&1 ||
        { echo "$name failed:"; cat "$name.log"; exit 1; }
    read -r kib seconds < "$name.time"
    echo "$((kib / 1024)) $seconds" > "$name.figures"
    printf '%-28s peak %6d MiB  %8.2f s\n' "$name:" "$((kib / 1024))" "$seconds"
}

echo "maps of $size x $size Float32 cells, --memory $budget, $processors processors"
# Inputs of the same size that an earlier run left in the folder are used again.
if [ "$(gdalinfo a.tif 2> /dev/null | grep -c "^Size is $size, $size$")" = 1 ] &&
    [ "$(gdalinfo b.tif 2> /dev/null | grep -c "^Size is $size, $size$")" = 1 ]; then
    echo "the inputs a.tif and b.tif of $folder are used again"
else
    gdal_create -q -of GTiff -outsize "$size" "$size" -ot Float32 -burn 0 -a_nodata -9999 \
        -co TILED=YES -co COMPRESS=DEFLATE -co BIGTIFF=YES empty.tif
    cp "$here/big_map_inputs.vrk" make.vrk
    measure "making the inputs (vrk)" "$vrk" run make.vrk --memory "$budget" \
        --processors "$processors"
fi

cat > if.vrk <<'SCRIPT'
a := LoadMap filename = "a.tif";
b := LoadMap filename = "b.tif";
c := CalculateMap expression = [ if i1 > 0 then i1 * 2 + i2 else 0 ] {
    NumberMap map = a.map mapNumber = 1;
    NumberMap map = b.map mapNumber = 2;
}
SaveMap map = c.result filename = "if.tif";
SCRIPT
cat > nbsum.vrk <<'SCRIPT'
a := LoadMap filename = "a.tif";
c := CalculateMap expression = [ nbsum(i1, 5, 5, 2, 2) ] {
    NumberMap map = a.map mapNumber = 1;
}
SaveMap map = c.result filename = "nbsum.tif";
SCRIPT
measure "if (vrk)" "$vrk" run if.vrk --memory "$budget" --processors "$processors"
measure "nbsum (vrk)" "$vrk" run nbsum.vrk --memory "$budget" --processors "$processors"

if ! command -v grass > /dev/null; then
    echo "GRASS is not installed: its r.mapcalc and r.neighbors are skipped (--install-peer)."
    exit 0
fi
# The peer reads the same GeoTIFFs in place and writes the same kind of file; its
# region is the maps' grid. Its calculations run on one thread (the version packaged
# here has no option for more); its compression uses the processors given.
# The inputs have no projection: the peer's location is a plain grid, and its links to
# the files are told not to compare projections.
grass -c XY "$folder/grassdb/bench" -e > /dev/null 2>&1
in_peer=(grass "$folder/grassdb/bench/PERMANENT" --exec)
peer() { "${in_peer[@]}" "$@"; }
peer r.external -o input=a.tif output=a --quiet > /dev/null 2>&1
peer r.external -o input=b.tif output=b --quiet > /dev/null 2>&1
peer g.region raster=a --quiet > /dev/null 2>&1
peer r.external.out directory="$folder" format=GTiff extension=tif \
    options="TILED=YES,COMPRESS=DEFLATE,BIGTIFF=IF_SAFER,NUM_THREADS=$processors" > /dev/null 2>&1
measure "if (GRASS r.mapcalc)" "${in_peer[@]}" r.mapcalc "expression=peer_if = if(a > 0, a * 2 + b, 0)" \
    --overwrite
measure "nbsum (GRASS r.neighbors)" "${in_peer[@]}" r.neighbors input=a output=peer_nbsum size=5 \
    method=sum --overwrite
ratio() { # time and memory of $1 over $2
    read -r mine_kib mine_s < "$1.figures"
    read -r peer_kib peer_s < "$2.figures"
    python3 -c "print(f'{\"$1\"} / {\"$2\"}: time {$mine_s / max($peer_s, 0.01):.2f}, peak memory {$mine_kib / max($peer_kib, 1):.2f}')"
}
ratio "if (vrk)" "if (GRASS r.mapcalc)"
ratio "nbsum (vrk)" "nbsum (GRASS r.neighbors)"
