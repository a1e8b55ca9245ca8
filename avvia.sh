#!/usr/bin/env bash
# avvia.sh - builds the program, makes the example systems and develops one of them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=attrezzi/pacchetti.sh
source attrezzi/pacchetti.sh

readonly CARTELLA=build/avvia
readonly PROGRAMMA=$CARTELLA/src/cli/ordavel
readonly ESEMPI=$CARTELLA/esempi
readonly RESOCONTO=$CARTELLA/avvia.txt

# in_silenzio <what is done> <command>...: keeps the output for the day it is needed.
in_silenzio() {
    printf '%s...\n' "$1"
    if ! "${@:2}" >>"$RESOCONTO" 2>&1; then
        tail -n 40 "$RESOCONTO" >&2
        printf '\nNon è riuscito. Il resoconto intero è in %s\n' "$RESOCONTO" >&2
        return 1
    fi
}

installa_pacchetti "${PACCHETTI_PROGRAMMA[@]}"
mkdir -p "$ESEMPI"
: >"$RESOCONTO"

in_silenzio 'Preparo la costruzione' cmake -S . -B "$CARTELLA" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DORDAVEL_PROVE=OFF -DORDAVEL_QT=OFF
in_silenzio 'Costruisco il programma (la prima volta ci vuole qualche minuto)' \
    cmake --build "$CARTELLA" --target ordavel_programma

printf 'Creo i sistemi di esempio...\n'
rm -f "$ESEMPI"/*.sic "$ESEMPI"/*.col
for testo in esempi/*.json; do
    "$PROGRAMMA" crea "$testo" "$ESEMPI/$(basename "$testo" .json).sic"
done

printf '\nSviluppo il sistema superenalotto:\n\n'
"$PROGRAMMA" sviluppa "$ESEMPI/superenalotto.sic" -o "$ESEMPI/superenalotto.col"

printf '\nFatto: il programma è costruito, i sistemi di esempio sono in %s\n' "$ESEMPI"
printf 'e le colonne appena sviluppate in %s\n' "$ESEMPI/superenalotto.col"
printf 'Per vedere che altro sa fare:  %s --help\n' "$PROGRAMMA"
