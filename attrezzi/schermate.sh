#!/usr/bin/env bash
# schermate.sh - takes the pictures of the manual anew: the tests that draw windows, and those of their files it uses.
#
# The same machine gives the same bytes: no screen, one style, one scale, fonts by name. To look at all pictures, not
# only at those of the manual:  attrezzi/schermate.sh /tmp/schermate
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=attrezzi/pacchetti.sh
source attrezzi/pacchetti.sh

readonly MANUALE=docs/manuale.md
readonly IMMAGINI=docs/immagini
readonly COSTRUITO=build/dev

# The names of the pictures that the manual shows.
usate() {
    grep -o 'immagini/[^)]*\.png' "$MANUALE" | sed 's,.*/,,' | sort -u
}

# Those of the manual stand in the program too: it is not built without them, not even to take them.
segnaposti() {
    local nome
    mkdir -p "$IMMAGINI"
    for nome in $(usate); do
        [[ -e $IMMAGINI/$nome ]] || : >"$IMMAGINI/$nome"
    done
}

disegna() {
    local prova
    export ORDAVEL_SCHERMATE=$1
    export QT_QPA_PLATFORM=offscreen QT_STYLE_OVERRIDE=Fusion QT_SCALE_FACTOR=1 LC_ALL=C.UTF-8
    for prova in qt desktop; do
        (cd "$COSTRUITO/prove/$prova" && "./prova_$prova" --gtest_brief=1 --gtest_filter='*Schermate*')
    done
}

copia() {
    local nome
    find "$IMMAGINI" -name '*.png' -delete
    for nome in $(usate); do
        cp "$1/$nome" "$IMMAGINI/$nome"
    done
}

installa_pacchetti "${PACCHETTI_PROGRAMMA[@]}" "${PACCHETTI_FACCIA[@]}" "${PACCHETTI_PROVE[@]}"
segnaposti
cmake --preset dev >/dev/null
cmake --build "$COSTRUITO" --target prova_qt prova_desktop
if (($# > 0)); then
    cartella=$(realpath -m "$1")
    mkdir -p "$cartella"
else
    cartella=$(mktemp -d)
    trap 'rm -rf "$cartella"' EXIT
fi
disegna "$cartella"
copia "$cartella"
printf 'Le immagini del manuale sono in %s\n' "$IMMAGINI"
