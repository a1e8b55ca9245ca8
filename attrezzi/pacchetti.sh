# pacchetti.sh - the Debian packages that the project asks for, and their installation; to be sourced.
# shellcheck shell=bash

# What the program is built with.
# shellcheck disable=SC2034
PACCHETTI_PROGRAMMA=(cmake ninja-build g++ libcli11-dev nlohmann-json3-dev)

# What the face and the desktop program are built with. The two libraries at the end are only recommended by Qt's
# own packages, and recommendations stay out: without them its Designer part is not found.
# shellcheck disable=SC2034
PACCHETTI_FACCIA=(qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools libqt6opengl6-dev libxkbcommon-dev
    qt6-translations-l10n fonts-dejavu-core fonts-liberation2)

# What the tests, the sanitizers of both compilers and the checks of the code want besides. The run-time
# libraries of clang's sanitizers and fuzzer are only recommended by clang, and recommendations stay out.
# shellcheck disable=SC2034
PACCHETTI_PROVE=(clang libclang-rt-14-dev clang-format clang-tidy ccache git python3
    libgtest-dev libgmock-dev libbenchmark-dev librapidcheck-dev xvfb xauth xdotool poppler-utils
    desktop-file-utils appstream)

# installa_pacchetti <package>...: installs those that are missing; does nothing when all are there.
installa_pacchetti() {
    local pacchetto stato
    local mancanti=() comando=()
    for pacchetto in "$@"; do
        stato=$(dpkg-query -W -f='${db:Status-Status}' "$pacchetto" 2>/dev/null) || stato=
        [[ $stato == installed ]] || mancanti+=("$pacchetto")
    done
    ((${#mancanti[@]} > 0)) || return 0

    if ! command -v apt-get >/dev/null; then
        printf 'Questo sistema non ha apt-get. Servono, con i nomi di Debian: %s\n' "${mancanti[*]}" >&2
        printf 'Proseguo come se ci fossero.\n' >&2
        return 0
    fi
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            printf 'Mancano: %s\nInstallali come amministratore e riprova.\n' "${mancanti[*]}" >&2
            return 1
        fi
        comando=(sudo)
    fi
    comando+=(env DEBIAN_FRONTEND=noninteractive apt-get -q)
    printf 'Installo: %s\n' "${mancanti[*]}"
    "${comando[@]}" update && "${comando[@]}" install -y --no-install-recommends "${mancanti[@]}"
}
