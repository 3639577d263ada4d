#!/usr/bin/env bash
# Scripts that load, calculate and save maps and tables, each run in a fresh folder on
# small ASCII grids made here, under the sequential and the parallel scheduler: every
# cell of the written maps, NoData included, is compared with what maps_grids.py
# computes on its own; a written GeoTIFF keeps the input's geotransform, projection and
# NoData as gdalinfo reads them; a loop of 100 passes through MuxMap peaks at the memory
# of 2; Ctrl-C stops a long calculation; the example grows its town as the reference
# does; and refused scripts end with their message and status.
set -u
vrk="$1"
here="$(cd "$(dirname "$0")" && pwd)"
grids="$here/maps_grids.py"
top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
failed=0
fail() { echo "FAIL $*"; failed=1; }

# A fresh folder $work with the grids of every case and the script from standard input.
fresh() {
    work=$(mktemp -d "$top/case.XXXX")
    cat > "$work/script.vrk"
    (cd "$work" &&
        python3 "$grids" make a.asc 6 9 1 real &&
        python3 "$grids" make b.asc 6 9 2 real &&
        python3 "$grids" make classes.asc 6 9 3 class &&
        python3 "$grids" make binary.asc 6 9 4 binary &&
        python3 "$grids" make small.asc 5 9 5 real) || fail "making grids"
}
# Runs the script of $work under the scheduler $2; $1 names the case.
run_ok() {
    (cd "$work" && "$vrk" run script.vrk --scheduler "$2" --log-level .result > out.log 2> err.log) ||
        fail "$1 ($2): the run failed: $(cat "$work/err.log")"
}
# Compares $work/$2 with formula $3 over the grids after it; $1 names the case.
expect_cells() {
    local name="$1" out="$2" formula="$3"
    shift 3
    (cd "$work" && python3 "$grids" check "$formula" "$out" "$@") || fail "$name: $out differs"
}
# The standard error of a refused script holds "script.vrk:$3: error: $2" and the
# status is $4; $1 names the case.
refused() {
    local name="$1" message="$2" place="$3" expected="$4" status
    (cd "$work" && "$vrk" run script.vrk > /dev/null 2> err.log)
    status=$?
    [ "$status" = "$expected" ] || fail "$name: status $status, expected $expected"
    grep -qF "script.vrk:$place: error: $message" "$work/err.log" ||
        fail "$name: the error was: $(cat "$work/err.log")"
}

for scheduler in sequential parallel; do
    fresh <<'SCRIPT'
a := LoadMap filename = "a.asc";
SaveMap map = a.map filename = "copy.asc";
SaveMap map = a.map filename = "copy.tif";
name := CreateString format = "named_<v1>.asc" {
    NumberValue value = 4 valueNumber = 1;
}
SaveMap map = a.map filename = name.result;
Workdir folder = "out" {
    loop := For firstIterationStep = 1 lastIterationStep = 3 {
        SaveMap map = a.map filename = "step_.asc" suffixDigits = 2 step = loop.step;
    }
}
SCRIPT
    mkdir "$work/out"
    run_ok "copies" "$scheduler"
    gdal_translate -q -of AAIGrid "$work/copy.tif" "$work/back.asc" || fail "copies: no GeoTIFF"
    for out in copy.asc back.asc named_4.asc out/step_01.asc out/step_02.asc out/step_03.asc; do
        expect_cells "copies ($scheduler)" "$out" plus0 a.asc
    done

    fresh <<'SCRIPT'
t := LoadLookupTable filename = "table.csv";
doubled := CalculateLookupTable2 expression = [ %table[line] * 2 + v1 + line ] table = t.table {
    NumberValue value = 0.5 valueNumber = 1;
}
SaveLookupTable table = doubled.result filename = "doubled.csv";
first := CalculateLookupTable {
    NumberLookupTable table = doubled.result tableNumber = 1;
}
SaveLookupTable table = first.result filename = "first.csv";
SCRIPT
    printf 'class,weight\r\n1,10\r\n3,-2.5\r\n\r\n2,0.1\r\n' > "$work/table.csv"
    run_ok "tables" "$scheduler"
    expected=$'key,value\n1,21.5\n2,2.7\n3,-1.5'
    [ "$(cat "$work/doubled.csv")" = "$expected" ] || fail "tables: $(cat "$work/doubled.csv")"
    cmp -s "$work/doubled.csv" "$work/first.csv" || fail "tables: t1[line] changed the table"
done

# Local, focal, table and categorical formulas, each cell against the reference.
for scheduler in sequential parallel; do
    fresh <<'SCRIPT'
a := LoadMap filename = "a.asc";
b := LoadMap filename = "b.asc";
classes := LoadMap filename = "classes.asc";
binary := LoadMap filename = "binary.asc";
weights := LoadLookupTable filename = "weights.csv";
local := CalculateMap expression = [ if i1 > 5 then i1 * 2 + i2 else i2 - 1 ] {
    NumberMap map = a.map mapNumber = 1;
    NumberMap map = b.map mapNumber = 2;
}
SaveMap map = local.result filename = "local.asc";
sum := CalculateMap2 expression = [ nbsum(#image, 3, 3, 1, 1) ] image = a.map;
SaveMap map = sum.result filename = "focal_sum.asc";
count := CalculateCategoricalMap2 expression = [ nbcount(#image, 3, 3, 1, 1) ] image = binary.map;
SaveMap map = count.result filename = "focal_count.asc";
classified := CalculateMap expression = [ %weights[#classes] ] {
    NameMap map = classes.map mapName = "classes";
    NameLookupTable table = weights.table tableName = "weights";
}
SaveMap map = classified.result filename = "classified.asc";
quarter := CalculateCategoricalMap expression = [ i1 / v1 ] {
    NumberMap map = a.map mapNumber = 1;
    NumberValue value = 4 valueNumber = 1;
}
SaveMap map = quarter.result filename = "quarter.tif";
unchanged := CalculateMap2 image = b.map;
SaveMap map = unchanged.result filename = "default.asc";
SCRIPT
    printf '1,10\n2,20\n3,35.5\n4,-4\n' > "$work/weights.csv"
    run_ok "formulas" "$scheduler"
    expect_cells "local ($scheduler)" local.asc local a.asc b.asc
    expect_cells "focal sum ($scheduler)" focal_sum.asc focal_sum a.asc
    expect_cells "focal count ($scheduler)" focal_count.asc focal_count binary.asc
    expect_cells "table ($scheduler)" classified.asc classified classes.asc
    gdal_translate -q -of AAIGrid "$work/quarter.tif" "$work/quarter.asc"
    expect_cells "categorical ($scheduler)" quarter.asc quarter a.asc
    gdalinfo "$work/quarter.tif" | grep -q "Type=Int32" || fail "categorical: not Int32"
    expect_cells "default formula ($scheduler)" default.asc plus0 b.asc

    # A map carried from pass to pass by MuxMap, one file per step.
    fresh <<'SCRIPT'
a := LoadMap filename = "a.asc";
loop := For firstIterationStep = 1 lastIterationStep = 4 {
    state := MuxMap initial = a.map feedback = next.result;
    next := CalculateMap2 expression = [ #image + 1 ] image = state.map;
    SaveMap map = next.result filename = "state_.asc" suffixDigits = 2 step = loop.step;
}
SCRIPT
    run_ok "loop" "$scheduler"
    for step in 1 2 3 4; do
        expect_cells "loop ($scheduler)" "state_0$step.asc" "plus$step" a.asc
    done
done

# A map carried through 100 passes holds no more memory at its peak than through 2:
# each pass lets go of the map that the next replaces.
peak_kb() {
    (cd "$work" && python3 -c 'import resource, subprocess, sys
subprocess.run(sys.argv[1:], check=True, stdout=subprocess.DEVNULL)
print(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss)' "$vrk" run "$1" --log-level .result)
}
fresh <<'SCRIPT'
SCRIPT
python3 -c 'import sys
size = 2048
row = " ".join(str(column % 7) for column in range(size)) + "\n"
with open(sys.argv[1], "w") as grid:
    grid.write(f"ncols {size}\nnrows {size}\nxllcorner 0\nyllcorner 0\ncellsize 1\nNODATA_value -9999\n")
    grid.writelines(row for _ in range(size))' "$work/big.asc"
for passes in 2 100; do
    cat > "$work/loop$passes.vrk" <<SCRIPT
big := LoadMap filename = "big.asc";
loop := For firstIterationStep = 1 lastIterationStep = $passes {
    state := MuxMap initial = big.map feedback = next.result;
    next := CalculateMap2 expression = [ #image + 1 ] image = state.map;
}
SCRIPT
done
short=$(peak_kb loop2.vrk) && long=$(peak_kb loop100.vrk) || fail "memory: a loop failed"
[ "${long:-0}" -le $((${short:-0} * 11 / 10)) ] ||
    fail "memory: 100 passes peak at $long KB, 2 passes at $short KB"

# Ctrl-C during a long calculation ends the run with status 130 and writes no map: the
# calculation listens between its tiles. The window's size is worked out at each cell,
# so that one calculation takes seconds, and the loop repeats it a million times, so
# that the run is long on any machine. SIGINT comes once the loop has begun, which its
# banner tells, so that it reaches the calculation whatever the time of loading. The
# map is saved after the loop, so that no map is written unless the loop ends.
# $1 names the case, $2 is the formula.
cancelled_calculation() {
    local name="$1" pid waited status scheduler
    cat > "$work/slow.vrk" <<SCRIPT
big := LoadMap filename = "big.asc";
loop := For firstIterationStep = 1 lastIterationStep = 1000000 {
    slow := CalculateMap2 expression = [ $2 ] image = big.map;
}
SaveMap map = slow.result filename = "slow.tif";
SCRIPT
    for scheduler in sequential parallel; do
        rm -f "$work/slow.log"
        (cd "$work" && exec "$vrk" run slow.vrk --scheduler "$scheduler" --log-level .info > slow.log 2>&1) &
        pid=$!
        waited=0
        while ! grep -q "Running step 1," "$work/slow.log" 2>/dev/null && kill -0 "$pid" 2>/dev/null &&
            [ "$waited" -lt 1200 ]; do
            sleep 0.1
            waited=$((waited + 1))
        done
        grep -q "Running step 1," "$work/slow.log" ||
            fail "$name ($scheduler): the loop never began: $(cat "$work/slow.log")"
        kill -INT "$pid"
        waited=0
        while kill -0 "$pid" 2>/dev/null && [ "$waited" -lt 100 ]; do
            sleep 0.1
            waited=$((waited + 1))
        done
        if kill -0 "$pid" 2>/dev/null; then
            fail "$name ($scheduler): still calculating ten seconds after SIGINT"
            kill -KILL "$pid"
        fi
        wait "$pid"
        status=$?
        [ "$status" = 130 ] || fail "$name ($scheduler): status $status, expected 130"
        [ ! -e "$work/slow.tif" ] || fail "$name ($scheduler): a map was written"
    done
}
cancelled_calculation cancel "nbsum(#image, 9 + 0 * #image, 9, 4, 4)"
# A window over the whole map makes each cell read four million cells: the calculation
# hears Ctrl-C while it reads them, not only between blocks of 256 such cells.
cancelled_calculation "cancel a large window" "nbmedian(#image, 4095, 4095, 2047, 2047)"

# The example: its shipped grids are those its script makes, and every year of the town
# is the reference's, under both schedulers.
example="$here/../../examples/maps"
for scheduler in sequential parallel; do
    fresh < "$example/model.vrk"
    (cd "$work" && python3 "$example/make-inputs.py") || fail "example: no inputs"
    for input in landuse.asc town.asc suitability.csv; do
        cmp -s "$work/$input" "$example/$input" || fail "example: $input is not what is made"
    done
    run_ok "example" "$scheduler"
    for year in 01 02 03 04 05 06 07 08 09 10; do
        gdal_translate -q -of AAIGrid "$work/state_$year.tif" "$work/state_$year.asc" ||
            fail "example: no year $year"
    done
    (cd "$work" && python3 "$grids" town landuse.asc town.asc suitability.csv 10 state_) ||
        fail "example ($scheduler): the town differs"
done

# A GeoTIFF written from a GeoTIFF keeps its geotransform, projection and NoData.
fresh <<'SCRIPT'
a := LoadMap filename = "a.tif";
SaveMap map = a.map filename = "written.tif";
SCRIPT
gdal_translate -q -a_srs EPSG:32633 "$work/a.asc" "$work/a.tif" || fail "gdal_translate"
run_ok "GeoTIFF" sequential
georeference() {
    gdalinfo -json "$1" | python3 -c 'import json, sys
info = json.load(sys.stdin)
print(info["geoTransform"], info["bands"][0]["noDataValue"], info["coordinateSystem"]["wkt"])'
}
input=$(georeference "$work/a.tif")
written=$(georeference "$work/written.tif")
[ "$input" = "$written" ] || fail "GeoTIFF: $written, expected $input"
[[ "$written" == *"UTM zone 33N"* ]] || fail "GeoTIFF: projection lost: $written"
gdalinfo "$work/written.tif" | grep -q "COMPRESSION=DEFLATE" || fail "GeoTIFF: not compressed"

# Refusals: before the run (status 2) and during it (status 1), at the functor.
fresh <<'SCRIPT'
a := LoadMap filename = "a.asc";
SaveMap map = a.map filename = "a.png";
SCRIPT
refused "unwritten format" "The \"$work/a.png\" does not represent a supported file format." 2:1 2

fresh <<'SCRIPT'
a := LoadMap filename = "a.asc";
empty := CreateString format = "";
SaveMap map = a.map filename = empty.result;
SCRIPT
refused "empty built name" "The run of \"SaveMap\" failed: The input \"filename\" of \"SaveMap\" cannot take the data of the output \"result\" of \"empty\" (CreateString): The map file \"\" is not valid." 3:21 1

fresh <<'SCRIPT'
LoadMap filename = "missing.asc";
SCRIPT
refused "missing map" "The file \"$work/missing.asc\" can not be read." 1:1 2

fresh <<'SCRIPT'
text := LoadMap filename = "text.asc";
SCRIPT
echo "no grid here" > "$work/text.asc"
refused "not a map" "The run of \"text\" (LoadMap) failed: The map file \"$work/text.asc\" can not be read as a map" 1:1 1

fresh <<'SCRIPT'
g := LoadMap filename = "junk.asc";
SCRIPT
printf 'ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n1 2\n3 abc\n' > "$work/junk.asc"
refused "cell not a number" "The run of \"g\" (LoadMap) failed: $work/junk.asc:7: The cell \"abc\" is not a number." 1:1 1

fresh <<'SCRIPT'
t := LoadLookupTable filename = "big.csv";
SCRIPT
printf 'key,value\n1,2\n2,1e400\n' > "$work/big.csv"
refused "value beyond doubles" "The run of \"t\" (LoadLookupTable) failed: $work/big.csv:3: The value \"1e400\" is beyond the range of double precision reals." 1:1 1

fresh <<'SCRIPT'
t := LoadLookupTable filename = "bad.csv";
SCRIPT
printf 'key,value\n1,2\n2,two\n' > "$work/bad.csv"
refused "bad table" "The run of \"t\" (LoadLookupTable) failed: $work/bad.csv:3: The value \"two\" is not a number." 1:1 1

# A table of random bytes is refused in a short message that a terminal can show.
fresh <<'SCRIPT'
t := LoadLookupTable filename = "noise.csv";
SCRIPT
python3 -c 'import random, sys
random.seed(7)
sys.stdout.buffer.write(bytes(random.randrange(256) for _ in range(1000000)))' > "$work/noise.csv"
refused "random bytes" "The run of \"t\" (LoadLookupTable) failed: $work/noise.csv:1: " 1:1 1
[ "$(wc -c < "$work/err.log")" -lt 2000 ] || fail "random bytes: $(wc -c < "$work/err.log") bytes of error"
python3 -c 'import sys
text = open(sys.argv[1], "rb").read().decode("utf-8")
sys.exit(any((ord(c) < 32 and c not in "\t\n") or 127 <= ord(c) < 160 for c in text))' "$work/err.log" ||
    fail "random bytes: the error is not printable: $(od -c "$work/err.log" | head)"

fresh <<'SCRIPT'
t := LoadLookupTable filename = "table.csv";
c := CalculateLookupTable expression = [ t1[line] + t2[line] ] {
    NumberLookupTable table = t.table tableNumber = 1;
    NumberLookupTable table = t.table tableNumber = 1;
}
SCRIPT
echo "1,2" > "$work/table.csv"
refused "duplicate table" "The run of \"c\" (CalculateLookupTable) failed: The key \"t1\" is already in use by another hook functor." 2:1 1

fresh <<'SCRIPT'
a := LoadMap filename = "a.asc";
c := CalculateMap expression = [ i1 + i2 ] {
    NumberMap map = a.map mapNumber = 1;
}
SCRIPT
refused "unregistered map" "The run of \"c\" (CalculateMap) failed: Undefined key \"i2\" used by expression." 2:1 1

fresh <<'SCRIPT'
a := LoadMap filename = "a.asc";
small := LoadMap filename = "small.asc";
c := CalculateMap2 expression = [ #image + #small ] image = a.map {
    NameMap map = small.map mapName = "small";
}
SCRIPT
refused "grid mismatch" "The run of \"c\" (CalculateMap2) failed: The map #small of the expression \"#image + #small\" lies on a grid of 9 x 5 cells" 3:1 1

fresh <<'SCRIPT'
c := CalculateMap expression = [ v1 * 2 ] {
    NumberValue value = 1 valueNumber = 1;
}
SCRIPT
refused "no map" "The run of \"c\" (CalculateMap) failed: The expression \"v1 * 2\" names no map, so there is no grid to calculate it on." 1:1 1

fresh <<'SCRIPT'
a := LoadMap filename = "a.asc";
c := CalculateLookupTable expression = [ i1 ] {
    NumberMap map = a.map mapNumber = 1;
}
SCRIPT
refused "map in a table" "The run of \"c\" (CalculateLookupTable) failed: The expression \"i1\" names a map, which CalculateLookupTable does not provide." 2:1 1

# Every map loaded keeps handles on its file while it lives: 60 maps at once need more
# open files than a soft limit of 64, which vrk raises to the hard limit.
fresh < <(python3 - <<'PYTHON'
maps = range(1, 61)
print("\n".join('m%d := LoadMap filename = "a.asc";' % i for i in maps))
print("c := CalculateMap expression = [ " + " + ".join("i%d" % i for i in maps) + " ] {")
print("\n".join("    NumberMap map = m%d.map mapNumber = %d;" % (i, i) for i in maps))
print("}")
print('SaveMap map = c.result filename = "sum.asc";')
PYTHON
)
if [ "$(ulimit -Hn)" = unlimited ] || [ "$(ulimit -Hn)" -gt 256 ]; then
    (cd "$work" && ulimit -Sn 64 && "$vrk" run script.vrk --log-level .error) ||
        fail "60 maps under a soft limit of 64 open files"
    [ -s "$work/sum.asc" ] || fail "60 maps: no sum written"
fi

[ "$failed" = 0 ] && echo "maps: all cases passed"
exit "$failed"
