#!/usr/bin/env bash
# prova.sh - checks the whole project: format, tests, sanitizers, fuzzers, clang-tidy.
#
# Without names it runs the usual steps; with names only those, in the order given. The last line it prints is
# "N passed, N failed", the sums of all test runs; a step that falls before a test does counts as one failure.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=attrezzi/pacchetti.sh
source attrezzi/pacchetti.sh

readonly SOLITI=(formato dev asan fuzz tidy)
readonly TUTTI=(formato dev asan fuzz release tsan tidy-tutto)
readonly RESOCONTI=build/prova

uso() {
    printf 'Uso: ./prova.sh [--tutto] [passo...]\n\n'
    printf 'Senza nomi esegue: %s\n' "${SOLITI[*]}"
    printf 'Con --tutto:       %s\n' "${TUTTI[*]}"
    printf 'Con uno o più nomi esegue solo quei passi.\n'
}

# The checkout may belong to another user, as it does inside a container.
formato() {
    git -c safe.directory="$PWD" ls-files -z -- '*.cpp' '*.hpp' |
        xargs -0 --no-run-if-empty clang-format --dry-run -Werror
}

# flusso <preset>: configures, builds and tests as CMakePresets.json says.
flusso() {
    # Ninja does not know that the verdicts of clang-tidy depend on its own files.
    if [[ $1 == tidy* && -e build/$1/CMakeCache.txt ]] &&
        [[ -n $(find .clang-tidy prove/.clang-tidy src/qt/.clang-tidy src/desktop/.clang-tidy -newer "build/$1/CMakeCache.txt") ]]; then
        rm -rf "build/$1"
    fi
    cmake --workflow --preset "$1"
}

passi=()
for argomento in "$@"; do
    case $argomento in
    -h | --help | --aiuto)
        uso
        exit 0
        ;;
    --tutto) passi+=("${TUTTI[@]}") ;;
    formato | dev | asan | fuzz | tidy | release | tsan | tidy-tutto) passi+=("$argomento") ;;
    *)
        printf 'Passo sconosciuto: %s\n\n' "$argomento" >&2
        uso >&2
        exit 2
        ;;
    esac
done
((${#passi[@]} > 0)) || passi=("${SOLITI[@]}")

installa_pacchetti "${PACCHETTI_PROGRAMMA[@]}" "${PACCHETTI_FACCIA[@]}" "${PACCHETTI_PROVE[@]}"
mkdir -p "$RESOCONTI"

superate=0
fallite=0
caduti=()
for passo in "${passi[@]}"; do
    printf '\n==> %s\n' "$passo"
    resoconto=$RESOCONTI/$passo.txt
    esito=0
    case $passo in
    formato) formato ;;
    *) flusso "$passo" ;;
    esac 2>&1 | tee "$resoconto" || esito=1

    # "97% tests passed, 3 tests failed out of 100"
    fallite_qui=0
    while read -r cadute totale; do
        fallite_qui=$((fallite_qui + cadute))
        superate=$((superate + totale - cadute))
    done < <(sed -nE 's/^[0-9]+% tests passed, ([0-9]+) tests? failed out of ([0-9]+)$/\1 \2/p' "$resoconto")
    if ((esito != 0)); then
        caduti+=("$passo")
        ((fallite_qui > 0)) || fallite_qui=1
    fi
    fallite=$((fallite + fallite_qui))
done

printf '\n'
for passo in "${caduti[@]}"; do
    printf 'Passo fallito: %s (resoconto in %s)\n' "$passo" "$RESOCONTI/$passo.txt"
done
printf '%d passed, %d failed\n' "$superate" "$fallite"
((fallite == 0))
