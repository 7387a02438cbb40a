#!/bin/sh
# Runs every fuzz target for SECONDS seconds on its corpus (the inputs that once failed, the
# files of the demo data as seeds) and reports the executions and crashes of each.
# Usage: fuzz/run.sh BUILD SECONDS TARGET...
B=$1; T=$2; shift 2
mkdir -p "$B/logs"
status=0
printf '%-14s %12s %8s\n' cel wykonania awarie
for t in "$@"; do
  work="$B/corpus/$t"; crashes="$B/crashes/$t"
  mkdir -p "$work" "$crashes"
  case $t in
    instalka) seeds="demo/instalka.dat" ;;
    mojafirma) seeds="demo/MojaFirma.txt" ;;
    instal) seeds="demo/DEMO/instal.dat" ;;
    dane) seeds="demo/dane/Dane.dta" ;;
    person) seeds="demo/DEMO/Person/a.per demo/DEMO/Person/p.per" ;;
    pay|codec) seeds="demo/DEMO/Bazy/a.dta demo/DEMO/Bazy/p.dta" ;;
    sumy) seeds="tests/printing/data/Sa2101.sum" ;;
    *) seeds="" ;;
  esac
  for s in $seeds; do [ -f "$s" ] && cp "$s" "$work/"; done
  seedDir=tests/fuzz/corpus/$t
  [ -d "$seedDir" ] || seedDir=""
  "$B/fuzz/fuzz_$t" -max_total_time="$T" -print_final_stats=1 -timeout=10 -rss_limit_mb=2048 \
    -max_len=65536 -artifact_prefix="$crashes/" "$work" $seedDir >"$B/logs/$t.log" 2>&1
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$B/logs/$t.log" | tail -1)
  n=$(find "$crashes" -type f | wc -l)
  [ "$n" -gt 0 ] && status=1
  printf '%-14s %12s %8s\n' "$t" "${runs:-?}" "$n"
done
[ $status = 0 ] || echo "Awarie: pliki w $B/crashes/<cel>/, przebieg w $B/logs/<cel>.log" 
exit $status
