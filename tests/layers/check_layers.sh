#!/bin/bash
# A lower layer never names a functor of a higher one in a string: the host (base/,
# tessaly/, apps/) names no plugin's functor, and Prim names no functor of the plugins
# built on it. A name in a string is a dependency that no include shows; it breaks
# without a word when the higher layer changes.
# Usage: check_layers.sh SOURCE_DIR. Prints each violation as FILE:LINE: "NAME" (LAYER)
# and exits 1 when there is one.
set -u
root=${1:?source folder}
cd "$root" || exit 2

# The functors that the plugins in the given folders register, one name a line.
functors_of() {
    [ $# -gt 0 ] || return 0
    find "$@" -name '*.cpp' -print0 2>/dev/null \
        | xargs -0 -r perl -0777 -ne 'print "$1\n" while /registerFunctor<[^>]*>\(\s*"([A-Za-z0-9_]+)"/g' \
        | sort -u
}

# Each string literal of the sources under FOLDER that is one of the names in NAMES,
# comments left out, as FILE:LINE: "NAME" (LAYER).
strings_in() {
    local folder=$1 names=$2 layer=$3
    [ -d "$folder" ] && [ -s "$names" ] || return 0
    find "$folder" \( -name '*.cpp' -o -name '*.h' \) -print0 \
        | xargs -0 -r perl -e '
            my ($names, $layer) = (shift, shift);
            open(my $in, "<", $names) or die;
            my %higher = map { chomp; ($_ => 1) } <$in>;
            for my $file (@ARGV) {
                open(my $f, "<", $file) or die;
                local $/;
                my $text = <$f>;
                # Comments become blanks of the same lines, so that line numbers hold.
                $text =~ s{/\*.*?\*/}{ my $c = $&; $c =~ s/[^\n]//g; $c }gse;
                $text =~ s{//[^\n]*}{}g;
                my $line = 1;
                for my $piece (split /(\n)/, $text) {
                    if ($piece eq "\n") { $line++; next; }
                    while ($piece =~ /"([A-Za-z0-9_]+)"/g) {
                        print "$file:$line: \"$1\" ($layer)\n" if $higher{$1};
                    }
                }
            }' "$names" "$layer"
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
companions=()
for plugin in plugins/*/; do
    plugin=${plugin%/}
    [ "$plugin" = plugins/prim ] || companions+=("$plugin")
done
functors_of plugins >"$work/all"
functors_of "${companions[@]}" >"$work/companions"

found=$(
    for host in base tessaly apps; do
        strings_in "$host" "$work/all" "$host names a plugin's functor"
    done
    strings_in plugins/prim "$work/companions" "Prim names a functor of a plugin built on it"
)
if [ -n "$found" ]; then
    echo "$found"
    exit 1
fi
echo "No lower layer names a higher one's functor ($(wc -l <"$work/all") functors checked)."
