#!/usr/bin/env bash
# The tool's main job on the examples: text into a database and back out, checked and addressable.
# Usage: demo.sh PATH-TO-NGA
set -euo pipefail
nga=$(realpath "$1")
examples=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

step() { printf '\n\033[1m== %s\033[0m\n' "$*"; }
[ -t 1 ] && [ -z "${NO_COLOR:-}" ] || step() { printf '\n== %s\n' "$*"; }
shown() { printf '$ nga %s\n' "$*"; "$nga" "$@"; }

step "A bracket: materials and load cases come in as text and are stored"
cp "$examples/bracket.json" .
shown import bracket.json --into bracket.nga
ls -l bracket.nga | awk '{print $5 " bytes in " $9}'

step "Every object is checked"
shown check bracket.nga

step "The file is opened again and shown"
shown tree bracket.nga

step "One object by its path"
shown show bracket.nga "documents['bracket'].materials['steel S355'].options['elastic']"

step "Out again as text: the same text however often it goes through the database"
"$nga" export bracket.nga > first.json
"$nga" --quiet import first.json --into again.nga
"$nga" export again.nga > second.json
cmp first.json second.json
printf '%s bytes of text, equal\n' "$(wc -c < second.json)"

step "A material of each family: rubber, concrete, soil, foam, gasket, water and more"
cp "$examples/every_option.json" .
shown import every_option.json --into every_option.nga
shown check every_option.nga
"$nga" export every_option.nga | cmp - every_option.json

step "Amplitudes, sections of beams and filters"
cp "$examples/loads_and_sections.json" .
shown import loads_and_sections.json --into loads_and_sections.nga
shown check loads_and_sections.nga
"$nga" export loads_and_sections.nga | cmp - loads_and_sections.json

step "Connectors: a hinge with all eight behaviours, and a rubber bushing"
cp "$examples/hinge.json" .
shown import hinge.json --into hinge.nga
shown check hinge.nga
"$nga" export hinge.nga | cmp - hinge.json
shown tree hinge.nga
shown show hinge.nga "documents['hinge'].sections['door hinge'].options[0]"

step "A load over time, and a section with its properties, as pictures"
shown show loads_and_sections.nga "amplitudes['smooth step']" --plot
shown show loads_and_sections.nga "profiles['IPE 300 (EN 10365)']" --plot
shown show loads_and_sections.nga "profiles['IPE 300 (EN 10365)']" --output ipe300.svg
ls -l ipe300.svg | awk '{print $5 " bytes in " $9}'

step "What is wrong is named, with its place: a load case with a scale factor of zero"
cp "$examples/zero_factor.json" .
shown import zero_factor.json --into zero_factor.nga
code=0
shown check zero_factor.nga || code=$?
printf 'exit code %s\n' "$code"
[ "$code" -eq 1 ]

step "Databases of old schemas come up to date, and the old files stay beside"
for schema in 203 453; do
  sqlite3 "old_$schema.nga" < "$examples/old_$schema.sql"
  shown upgrade "old_$schema.nga"
done
shown tree old_203.nga
