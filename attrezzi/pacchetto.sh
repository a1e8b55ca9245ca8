#!/usr/bin/env bash
# pacchetto.sh - builds the two Debian packages, and looks at what they hold.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=attrezzi/pacchetti.sh
source attrezzi/pacchetti.sh

readonly CARTELLA=build/pacchetto

installa_pacchetti "${PACCHETTI_PROGRAMMA[@]}" "${PACCHETTI_FACCIA[@]}" dpkg-dev
cmake --preset pacchetto
cmake --build --preset pacchetto
rm -f "$CARTELLA"/*.deb
(cd "$CARTELLA" && cpack -G DEB)

# deve_esserci <path>...: in the tree of the unpacked packages.
deve_esserci() {
    local percorso
    for percorso in "$@"; do
        if [[ ! -e $radice/$percorso && ! -L $radice/$percorso ]]; then
            printf 'Nei pacchetti manca %s\n' "$percorso" >&2
            return 1
        fi
    done
}

radice=$(mktemp -d)
trap 'rm -rf "$radice"' EXIT
for pacchetto in "$CARTELLA"/*.deb; do
    dpkg-deb -f "$pacchetto" Package Version Depends
    dpkg -x "$pacchetto" "$radice"
done
librerie=usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)
deve_esserci usr/bin/ordavel usr/bin/ordavel-desktop "$librerie"/libordavel.so.0 "$librerie"/libordavel_qt.so.0 \
    "$librerie"/trvrdcol.so "$librerie"/TorvanSvilSist.so "$librerie"/libordavel.so \
    "$librerie"/qt6/plugins/designer/libordavel_designer.so "$librerie"/cmake/Ordavel/OrdavelConfig.cmake \
    usr/include/ordavel/OrdavelWidget.hpp usr/share/applications/ordavel.desktop \
    usr/share/icons/hicolor/scalable/apps/ordavel.svg usr/share/metainfo/it.ordavel.Ordavel.metainfo.xml
LD_LIBRARY_PATH=$radice/$librerie "$radice"/usr/bin/ordavel --version
LD_LIBRARY_PATH=$radice/$librerie "$radice"/usr/bin/ordavel-desktop --version
printf 'I pacchetti sono in %s\n' "$CARTELLA"
