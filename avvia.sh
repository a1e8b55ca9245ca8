#!/usr/bin/env bash
# avvia.sh - builds the program, makes the example systems and develops one of them, or shows one in the window.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=attrezzi/pacchetti.sh
source attrezzi/pacchetti.sh

readonly CARTELLA=build/avvia
readonly PROGRAMMA=$CARTELLA/src/cli/ordavel
readonly FINESTRA=$CARTELLA/src/desktop/ordavel-desktop
readonly ESEMPI=$CARTELLA/esempi
readonly RESOCONTO=$CARTELLA/avvia.txt
readonly IMPOSTAZIONI=$CARTELLA/ordavel.ini

uso() {
    printf 'Uso: ./avvia.sh [--desktop]\n\n'
    printf 'Costruisce il programma, crea i sistemi di esempio e ne sviluppa uno.\n'
    printf 'Con --desktop costruisce la finestra e ci apre un sistema di esempio.\n'
}

# in_silenzio <what is done> <command>...: keeps the output for the day it is needed.
in_silenzio() {
    printf '%s...\n' "$1"
    if ! "${@:2}" >>"$RESOCONTO" 2>&1; then
        tail -n 40 "$RESOCONTO" >&2
        printf '\nNon è riuscito. Il resoconto intero è in %s\n' "$RESOCONTO" >&2
        return 1
    fi
}

# costruisci <face> <target>...: with or without the face.
costruisci() {
    in_silenzio 'Preparo la costruzione' cmake -S . -B "$CARTELLA" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DORDAVEL_PROVE=OFF -DORDAVEL_QT="$1"
    in_silenzio 'Costruisco il programma (la prima volta ci vuole qualche minuto)' \
        cmake --build "$CARTELLA" --target "${@:2}"
}

crea_esempi() {
    local testo
    printf 'Creo i sistemi di esempio...\n'
    rm -f "$ESEMPI"/*.sic "$ESEMPI"/*.col
    for testo in esempi/*.json; do
        "$PROGRAMMA" crea "$testo" "$ESEMPI/$(basename "$testo" .json).sic"
    done
}

# The first time the window finds its folders and the archives of invented draws; later what the user has set.
scrivi_impostazioni() {
    [[ -e $IMPOSTAZIONI ]] && return
    cat >"$IMPOSTAZIONI" <<INI
[General]
DirSistemi="$PWD/$ESEMPI"
PercorsoSalvaColonne="$PWD/$ESEMPI"
PercorsoTemp="$PWD/$CARTELLA/temp"
FileBdLotto="$PWD/esempi/archivi/lotto.bd"
FileBd10Lotto="$PWD/esempi/archivi/10elotto.bd"
FileBd10Lotto5M="$PWD/esempi/archivi/10elotto5m.bd"
FileBdSE="$PWD/esempi/archivi/superenalotto.bd"
FileBdWF="$PWD/esempi/archivi/winforlife.bd"
INI
}

apri_finestra() {
    if [[ -z ${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-} ]]; then
        printf 'Qui non c'\''è uno schermo (DISPLAY e WAYLAND_DISPLAY sono vuote): la finestra non si può aprire.\n' >&2
        printf 'Da una sessione grafica:  ./avvia.sh --desktop\n' >&2
        printf 'Senza schermo:            ./avvia.sh\n' >&2
        return 1
    fi
    installa_pacchetti "${PACCHETTI_PROGRAMMA[@]}" "${PACCHETTI_FACCIA[@]}"
    costruisci ON ordavel_programma ordavel_desktop TorvanSvilSist trvrdcol
    # The window looks for the external engines beside itself; they are built beside the other program.
    ln -sf "$PWD/$CARTELLA"/src/cli/*.so "$(dirname "$FINESTRA")"
    crea_esempi
    scrivi_impostazioni
    printf 'Apro la finestra con il sistema superenalotto.\n'
    exec "$FINESTRA" --impostazioni "$IMPOSTAZIONI" "$ESEMPI/superenalotto.sic"
}

case ${1:-} in
'' | --desktop) ;;
-h | --help | --aiuto)
    uso
    exit 0
    ;;
*)
    printf 'Opzione sconosciuta: %s\n\n' "$1" >&2
    uso >&2
    exit 2
    ;;
esac
mkdir -p "$ESEMPI"
: >"$RESOCONTO"
if [[ ${1:-} == --desktop ]]; then
    apri_finestra
fi

installa_pacchetti "${PACCHETTI_PROGRAMMA[@]}"
costruisci OFF ordavel_programma
crea_esempi

printf '\nSviluppo il sistema superenalotto:\n\n'
"$PROGRAMMA" sviluppa "$ESEMPI/superenalotto.sic" -o "$ESEMPI/superenalotto.col"

printf '\nFatto: il programma è costruito, i sistemi di esempio sono in %s\n' "$ESEMPI"
printf 'e le colonne appena sviluppate in %s\n' "$ESEMPI/superenalotto.col"
printf 'Per vedere che altro sa fare:  %s --help\n' "$PROGRAMMA"
printf 'Per aprire la finestra:        ./avvia.sh --desktop\n'
