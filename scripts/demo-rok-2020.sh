#!/bin/sh
# Rok 2020 obu list demonstracyjnych („a” i „p”) zrobiony poleceniami samego programu:
# kartoteka każdego miesiąca, zerowanie miesiąca, a gdy program ma polecenie `supplement`,
# także godziny nadliczbowe, dodatki, trzynastka, świadczenie urlopowe i nagroda jubileuszowa.
#
# Całość liczy się w kopii tymczasowej folderu demo/; do demo/ wracają tylko kartoteki
# i zbiory dodatkowe roku 2020. Bazy płacowe w demo/ zostają takie, jakie są (na styczeń 2021),
# bo na nich stoją testy i wzorce.
#
# Użycie: scripts/demo-rok-2020.sh [ŚCIEŻKA_DO_pensja-cli]   (domyślnie build/src/cli/pensja-cli)
set -eu
ROOT=$(cd "$(dirname "$0")/.." && pwd)
CLI=$(cd "$ROOT" && realpath "${1:-build/src/cli/pensja-cli}")
TMP=$(mktemp -d)
trap 'rm -rf "$TMP"' EXIT
cp -r "$ROOT/demo/." "$TMP/"
cd "$TMP"

ostatni() {  # ostatni dzień miesiąca 2020
    case $1 in 02) echo 29 ;; 04 | 06 | 09 | 11) echo 30 ;; *) echo 31 ;; esac
}
cli() { "$CLI" --yes "$@" > "$TMP/log" 2>&1 || { cat "$TMP/log"; exit 1; }; }
ma_dodatki=no
if "$CLI" --help 2>&1 | grep -q "supplement RODZAJ"; then ma_dodatki=yes; fi

# Osoby, którym w niektórych miesiącach wypłaca się coś poza listą.
A1=75031412317  # NOWAK JAN, lista a
A2=63072245629  # WIŚNIEWSKA MARIA, lista a
P1=70061034575  # WÓJCIK ANDRZEJ, lista p

for m in 01 02 03 04 05 06 07 08 09 10 11 12; do
    d="$(ostatni $m)-$m-2020"
    for l in a p; do
        cli --date "$d" ledger $l
    done
    if [ $ma_dodatki = yes ]; then
        case $m in
        03 | 10)  # godziny nadliczbowe
            cli --date "$d" supplement overtime a $A1 TxtPodstawaG=5200 txtIl1=10 txtIl4=6
            cli --date "$d" supplement overtime p "$P1" TxtPodstawaG=4000 txtIl2=8 ;;
        06)  # dodatki
            cli --date "$d" supplement additions a $A2 txtDodatek1=800 optD1=1
            cli --date "$d" supplement holiday a $A1 txtPodstawaU=1500 ;;
        09)  # nagroda jubileuszowa
            cli --date "$d" supplement jubilee a $A2 txtPodstawaJ=4000 ;;
        12)  # trzynastka za rok; roczne zestawienia czytają ją ze zbioru <lista>Trz<RR>.dta
            for l in a p; do
                k=$([ $l = a ] && echo $A1 || echo "$P1")
                cli --date "$d" supplement thirteenth $l "$k" txtOdKwoty=60000 txtWskaznik=8.5
                cp "DEMO/Trzynastki/${l}Trz2012.dta" "DEMO/Trzynastki/${l}Trz20.dta"
            done ;;
        esac
    fi
    for l in a p; do
        cli --date "$d" close-month $l
    done
done

# Do demo/ wracają tylko kartoteki i zbiory dodatkowe roku 2020.
for f in DEMO/Karta/?20??.dta DEMO/Godziny/*God20??.dta DEMO/Dodatki/*Dod20??.dta DEMO/Trzynastki/*Trz20*.dta \
         DEMO/Jubileu/*Jub20??.dta DEMO/Urlopy/*SwU20??.dta; do
    [ -f "$f" ] && cp "$f" "$ROOT/demo/$f"
done
echo "Rok 2020 list a i p zapisany w $ROOT/demo/DEMO (dodatkowe wypłaty: $ma_dodatki)"
