#!/usr/bin/env bash
# A model over two maps of 8192 x 8192 cells (256 MiB each in memory), run once with
# room for every map and once under --memory 64M, where every calculated map goes to a
# temporary file and every input is read by strips: the written maps are the same cell
# for cell, the budgeted run peaks far below the maps' size, and it leaves no temporary
# file behind. Then the model under an address-space limit too small for its maps stops
# with a located message that names the functor, not a write error.
set -u
vrk="$1"
here="$(cd "$(dirname "$0")" && pwd)"
top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
failed=0
fail() { echo "FAIL $*"; failed=1; }
cd "$top" || exit 1
mkdir tmp
export TMPDIR="$top/tmp"

# The inputs, made by vrk itself from an empty grid as the benchmark makes them: varied
# values of every sign with about 5 % NoData, and a second map of other values.
gdal_create -q -of GTiff -outsize 8192 8192 -ot Float32 -burn 0 -a_nodata -9999 \
    -co TILED=YES -co COMPRESS=DEFLATE empty.tif || fail "gdal_create"
cp "$here/../../bench/big_map_inputs.vrk" make.vrk
"$vrk" run make.vrk > /dev/null || fail "making the inputs"

# Two chained calculations, a window and a map carried through a loop.
cat > model.vrk <<'SCRIPT'
a := LoadMap filename = "a.tif";
b := LoadMap filename = "b.tif";
model := CalculateMap expression = [ if i1 > 0 then i1 * 2 + i2 else 0 ] {
    NumberMap map = a.map mapNumber = 1;
    NumberMap map = b.map mapNumber = 2;
}
smooth := CalculateMap2 expression = [ nbsum(#image, 5, 5, 2, 2) - i1 ] image = model.result {
    NumberMap map = b.map mapNumber = 1;
}
loop := For firstIterationStep = 1 lastIterationStep = 2 {
    state := MuxMap initial = smooth.result feedback = next.result;
    next := CalculateMap2 expression = [ #image / 2 + i1 ] image = state.map {
        NumberMap map = a.map mapNumber = 1;
    }
}
SaveMap map = smooth.result filename = "OUT/smooth.tif";
SaveMap map = next.result filename = "OUT/looped.tif";
SCRIPT
run_model() { # $1: the folder of the outputs; the rest: vrk's options
    local out="$1"
    shift
    mkdir -p "$out"
    sed "s|OUT|$out|" model.vrk > "$out.vrk"
    /usr/bin/time -f %M -o "$out.rss" "$vrk" run "$out.vrk" "$@" > /dev/null 2> "$out.err" ||
        fail "the run $* failed: $(cat "$out.err")"
}
run_model whole --memory 4G
run_model budget --memory 64M --scheduler parallel
for map in smooth looped; do
    for run in whole budget; do
        gdal_translate -q -of ENVI "$run/$map.tif" "$run/$map.bil" || fail "$run/$map.tif unreadable"
    done
    cmp -s whole/$map.bil budget/$map.bil || fail "$map differs under --memory 64M"
done
# The model's maps are 256 MiB each, five of them; the budgeted run holds strips of
# them, within the budget and 256 MiB for the strips, the raster library and the rest.
peak=$(tail -n 1 budget.rss)
[ "$peak" -lt $(((64 + 256) * 1024)) ] || fail "the run under --memory 64M peaked at $peak KiB"
leftover=$(ls tmp)
[ -z "$leftover" ] || fail "temporary files were left: $leftover"

# Too little address space for the maps, with the default budget: the calculation
# that cannot have its map says so at its place.
mkdir small
sed "s|OUT|small|" model.vrk > small.vrk
(ulimit -v 700000 && "$vrk" run small.vrk > /dev/null 2> small.err)
status=$?
[ "$status" = 1 ] || fail "the run under ulimit -v ended with $status: $(cat small.err)"
# Which calculation runs out first depends on what the process holds by then.
grep -Eq "small.vrk:[0-9]+:1: error: The run of \"(model|smooth|next)\" \(CalculateMap2?\) failed: Memory ran out while calculating a map of 8192 x 8192 cells" small.err ||
    fail "under ulimit -v the error was: $(cat small.err)"
leftover=$(ls tmp)
[ -z "$leftover" ] || fail "temporary files were left under ulimit -v: $leftover"

[ $failed = 0 ] && echo "big maps: every case passed"
exit $failed
