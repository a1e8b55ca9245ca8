// ModFileCondizioni.cpp - the condition file.

#include "persistenza/ModFileCondizioni.hpp"

#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModPagina1252.hpp"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace ordavel {

namespace {

using std::string_view_literals::operator""sv;

constexpr std::string_view kFineCella = "[R]"sv;
constexpr std::string_view kFineRiga = "\0"sv;

/// The cells of a row in the order of the file.
constexpr std::array kCelle = {&Condizione::sCondizione, &Condizione::sParametri, &Condizione::sPunti,
                               &Condizione::sRecupero, &Condizione::sQuadro};

void AccodaRiga(std::string& sFile, const Condizione& riga)
{
    for (const auto cella : kCelle) {
        sFile.append(InPagina1252(riga.*cella)).append(kFineCella);
    }
    sFile.append(kFineRiga);
}

/// Takes the text in front of a separator off sResto, and the separator with it; all of it when there is none.
/// One part at a time: a hostile file has a separator in every byte, and only the first parts count.
std::string_view Stacca(std::string_view& sResto, std::string_view sSeparatore)
{
    const std::string_view sParte = sResto.substr(0, sResto.find(sSeparatore));
    sResto.remove_prefix(std::min(sResto.size(), sParte.size() + sSeparatore.size()));
    return sParte;
}

Condizione LeggiRiga(std::string_view sPezzo)
{
    Condizione riga;
    for (const auto cella : kCelle) {
        riga.*cella = DaPagina1252(Stacca(sPezzo, kFineCella));
    }
    return riga;
}

void RifiutaSeTroppoLungo(std::int64_t nByte, const std::string& sPath)
{
    if (nByte > kByteFileCondizioniMassimi) {
        throw Errore(eErrore::memoria, sPath);
    }
}

void SvuotaFile(const std::string& sPath)
{
    std::error_code codice;
    std::filesystem::resize_file(sPath, 0, codice);
    if (codice) {
        throw ErroreDiSistema(codice.value(), sPath);
    }
}

} // namespace

std::vector<std::byte> ComponiFileCondizioni(std::span<const Condizione> aRighe)
{
    std::string sFile;
    for (const Condizione& riga : aRighe) {
        if (riga.sCondizione.empty()) {
            break;
        }
        AccodaRiga(sFile, riga);
    }
    const auto aByte = std::as_bytes(std::span(sFile));
    return {aByte.begin(), aByte.end()};
}

void LeggiFileCondizioni(std::span<const std::byte> aByte, std::vector<Condizione>& aRighe)
{
    aRighe.clear();
    // Bytes are looked at as characters, which may alias anything.
    std::string_view sResto(reinterpret_cast<const char*>(aByte.data()), aByte.size());
    for (std::string_view sPezzo; !(sPezzo = Stacca(sResto, kFineRiga)).empty();) {
        if (aRighe.size() == kCondizioniMassime) {
            Solleva(eErrore::indice);
        }
        aRighe.push_back(LeggiRiga(sPezzo));
    }
}

void ScriviFileCondizioni(const std::string& sPath, std::span<const Condizione> aRighe)
{
    const std::vector<std::byte> aByte = ComponiFileCondizioni(aRighe);
    RifiutaSeTroppoLungo(std::ssize(aByte), sPath);
    FileBinario file(sPath, eApertura::scrittura);
    SvuotaFile(sPath);
    file.Accoda(aByte);
    file.Chiudi();
}

void LeggiFileCondizioni(const std::string& sPath, std::vector<Condizione>& aRighe)
{
    aRighe.clear();
    FileBinario file(sPath, eApertura::lettura);
    const std::int64_t nByte = file.Lunghezza();
    RifiutaSeTroppoLungo(nByte, sPath);
    std::vector<std::byte> aByte(static_cast<std::size_t>(nByte));
    if (file.Leggi(1, aByte) != aByte.size()) {
        throw Errore(eErrore::dispositivo, sPath);
    }
    LeggiFileCondizioni(aByte, aRighe);
}

} // namespace ordavel
