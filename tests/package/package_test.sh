#!/bin/sh
# The Debian package: built into a temporary folder, then its file list, its control file's
# dependencies and its manual page checked. Skipped (77) where dpkg-deb is missing.
# Usage: package_test.sh BUILD_DIR SOURCE_DIR
set -eu
build=$1
src=$2
command -v dpkg-deb >/dev/null 2>&1 || { echo "brak dpkg-deb: test pominięty"; exit 77; }
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
fail() { echo "BŁĄD: $*"; exit 1; }

(cd "$build" && cpack -G DEB -B "$tmp/out") >"$tmp/cpack.log" 2>&1 || { cat "$tmp/cpack.log"; fail "cpack"; }
deb=$(ls "$tmp"/out/pensja_*_*.deb)
dpkg-deb -c "$deb" | awk '{print $6}' | sed 's|/$||' >"$tmp/files"

for f in ./usr/bin/pensja ./usr/bin/pensja-cli \
         ./usr/share/applications/pensja.desktop \
         ./usr/share/icons/hicolor/scalable/apps/pensja.svg \
         ./usr/share/man/man1/pensja-cli.1.gz ./usr/share/man/man1/pensja.1.gz \
         ./usr/share/doc/pensja/copyright \
         ./usr/share/pensja/demo/instalka.dat ./usr/share/pensja/demo/MojaFirma.txt \
         ./usr/share/pensja/demo/dane/Dane.dta ./usr/share/pensja/demo/DEMO/instal.dat \
         ./usr/share/pensja/demo/DEMO/Bazy/a.dta ./usr/share/pensja/demo/DEMO/Person/p.per \
         ./usr/share/pensja/demo/DEMO/Karta; do
    grep -qx "$f" "$tmp/files" || fail "brak $f w pakiecie"
done
if [ -f "$src/demo/dane/wzorc.kdu" ]; then
    grep -qx ./usr/share/pensja/wzorc.kdu "$tmp/files" || fail "brak wzorc.kdu w pakiecie"
fi
! grep -q '\.gitkeep$' "$tmp/files" || fail "pliki .gitkeep w pakiecie"
! grep -q '\.sh$' "$tmp/files" || fail "skrypty w pakiecie"

deps=$(dpkg-deb -f "$deb" Depends)
for p in libqt6core6 libqt6gui6 libqt6widgets6 libqt6printsupport6 qt6-qpa-plugins fonts-liberation libc6 libstdc++6; do
    echo "$deps" | tr ',' '\n' | sed 's/^ *//' | grep -q "^$p\( \|$\)" || fail "zależność $p: $deps"
done
[ "$(dpkg-deb -f "$deb" Architecture)" = "$(dpkg --print-architecture)" ] || fail "architektura"

# The manual page lists every command of --help.
dpkg-deb -x "$deb" "$tmp/root"
grep -q '^Categories=Office;Finance;$' "$tmp/root/usr/share/applications/pensja.desktop" || fail "kategorie menu"
zcat "$tmp/root/usr/share/man/man1/pensja-cli.1.gz" >"$tmp/man"
commands=$("$build/src/cli/pensja-cli" --help | grep -c '^  [a-z]')
entries=$(grep -c '^\.TP$' "$tmp/man")
[ "$commands" -gt 5 ] && [ "$commands" = "$entries" ] || fail "strona podręcznika: $entries poleceń, --help: $commands"
"$build/src/cli/pensja-cli" --help | grep '^  [a-z]' | sed 's/^  //; s/ .*//' | while read -r c; do
    grep -q "^\.B $(echo "$c" | sed 's/-/\\\\-/g')\( \|$\)" "$tmp/man" || fail "polecenie $c bez wpisu w podręczniku"
done
echo "pakiet $(basename "$deb"): $(wc -l <"$tmp/files") wpisów, zależności: $deps"
