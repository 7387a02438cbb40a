#!/bin/sh
# Makes the January 2021 overtime and additions of the demo list "a" (Administracja) with the
# program's own commands, on a copy of this folder, and copies the two month's files back:
#   Godziny/aGod2101.dta, Dodatki/aDod2101.dta
# Usage: demo/make-supplements.sh [path of pensja-cli]   (default: build/src/cli/pensja-cli)
set -eu
demo=$(cd "$(dirname "$0")" && pwd)
cli=${1:-$demo/../build/src/cli/pensja-cli}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -R "$demo"/. "$work"/
cd "$work"
rm -f DEMO/Godziny/aGod2101.dta DEMO/Dodatki/aDod2101.dta
run() { "$cli" --data . --yes supplement "$@" >/dev/null; }

# Overtime: planned and night hours; replacement hours into the account; other hours at a typed rate.
run overtime a 75031412317 txtIl1=10 txtIl4=2
run overtime a 63072245629 txtIl2=5 OpcjaRORG=1
run overtime a FP123456 txtIl7=4 txtSta7=40
# Additions: an addition in cash; an award and a housing allowance free of health, into the
# account; an addition across the yearly limit of the pension and disability base.
run additions a 75031412317 txtDodatek1=500
run additions a 88110578938 txtNagroda=1200 txtMieszkaniowy=300 optD3=1 ChkNFZD=0 OpcjaRORD=1
run additions a 85031589069 txtDodatek2=2000 txtBrOD01=157000

cp DEMO/Godziny/aGod2101.dta "$demo/DEMO/Godziny/"
cp DEMO/Dodatki/aDod2101.dta "$demo/DEMO/Dodatki/"
echo "Zapisano: $demo/DEMO/Godziny/aGod2101.dta, $demo/DEMO/Dodatki/aDod2101.dta"
