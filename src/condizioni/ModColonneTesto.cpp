// ModColonneTesto.cpp - columns out of any text.

#include "condizioni/ModColonneTesto.hpp"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <vector>

namespace ordavel {

namespace {

constexpr std::size_t kByteBlocco = 65536;

/// The numbers of a line, byte by byte.
class RaccoltaNumeri {
public:
    void Aggiungi(char c)
    {
        if (c >= '0' && c <= '9') {
            // From 91 on nothing more can come of a run, so its value stays there instead of growing.
            m_nValore = std::min(m_nValore * 10 + (c - '0'), kNumeroMassimo + 1);
        } else {
            ChiudiNumero();
        }
    }

    /// Ends the line, gives its numbers and begins another.
    bool Chiudi(NumeriScelti& aNumeri)
    {
        ChiudiNumero();
        aNumeri = {};
        int nTrovati = 0;
        for (std::int16_t n = 1; n <= kNumeroMassimo; ++n) {
            if (m_aFlag[n] != 0) {
                aNumeri[++nTrovati] = n;
            }
        }
        m_aFlag = {};
        return nTrovati > 0;
    }

private:
    void ChiudiNumero()
    {
        // A run of zeros, or none, flags entry 0, which nobody reads.
        if (m_nValore <= kNumeroMassimo) {
            m_aFlag[m_nValore] = kVero;
        }
        m_nValore = 0;
    }

    int m_nValore = 0;
    FlagNumeri m_aFlag;
};

bool ByteInterno(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// The lines of a text that comes in blocks.
class DivisoreRighe {
public:
    explicit DivisoreRighe(const RicevutaColonna& ricevuta) : m_Ricevuta(ricevuta) {}

    /// Gives    whether to read on
    bool Aggiungi(std::string_view sBlocco)
    {
        return std::all_of(sBlocco.begin(), sBlocco.end(), [this](char c) { return Aggiungi(c); });
    }

    /// Ends the last line.
    bool ChiudiRiga()
    {
        NumeriScelti aNumeri;
        const bool bAvanti = !m_Numeri.Chiudi(aNumeri) || m_Ricevuta(m_sMostrata, aNumeri);
        m_sMostrata.clear();
        m_bTagliata = false;
        return bAvanti;
    }

private:
    bool Aggiungi(char c)
    {
        if (c == '\r' || c == '\n') {
            return ChiudiRiga();
        }
        m_Numeri.Aggiungi(c);
        if (m_sMostrata.size() < kByteRigaMostrata && !m_bTagliata) {
            m_sMostrata += c;
        } else if (!m_bTagliata) {
            Taglia(c);
        }
        return true;
    }

    /// Ends the shown part in front of a byte; a character that this byte belongs to goes whole. In a text that
    /// is not UTF-8 no more than three bytes go.
    void Taglia(char c)
    {
        m_bTagliata = true;
        for (int nTolti = 0; ByteInterno(c) && nTolti < 3; ++nTolti) {
            c = m_sMostrata.back();
            m_sMostrata.pop_back();
        }
    }

    const RicevutaColonna& m_Ricevuta;
    RaccoltaNumeri m_Numeri;
    std::string m_sMostrata;
    bool m_bTagliata = false;
};

/// Reads block after block; a block that is not full is the last one.
/// Takes    leggi   fills a block and gives how many bytes it got
template <typename Lettura> void LeggiBlocchi(const RicevutaColonna& ricevuta, Lettura leggi)
{
    DivisoreRighe righe(ricevuta);
    std::vector<char> aBlocco(kByteBlocco);
    std::size_t nLetti = kByteBlocco;
    while (nLetti == kByteBlocco) {
        nLetti = leggi(std::span(aBlocco));
        if (!righe.Aggiungi({aBlocco.data(), nLetti})) {
            return;
        }
    }
    righe.ChiudiRiga();
}

} // namespace

void GetArrayNumFromColonna(std::string_view sRiga, NumeriScelti& aNumeri, bool& bTrovati)
{
    RaccoltaNumeri numeri;
    for (const char c : sRiga) {
        numeri.Aggiungi(c);
    }
    bTrovati = numeri.Chiudi(aNumeri);
}

void LeggiColonneTesto(std::istream& ingresso, const RicevutaColonna& ricevuta)
{
    LeggiBlocchi(ricevuta, [&ingresso](std::span<char> aBlocco) {
        ingresso.read(aBlocco.data(), static_cast<std::streamsize>(aBlocco.size()));
        if (ingresso.bad() || (ingresso.fail() && !ingresso.eof())) {
            Solleva(eErrore::dispositivo);
        }
        return static_cast<std::size_t>(ingresso.gcount());
    });
}

void LeggiColonneTesto(FileBinario& file, const RicevutaColonna& ricevuta)
{
    std::int64_t nPosizione = 1;
    LeggiBlocchi(ricevuta, [&file, &nPosizione](std::span<char> aBlocco) {
        const std::size_t nLetti = file.Leggi(nPosizione, std::as_writable_bytes(aBlocco));
        nPosizione += static_cast<std::int64_t>(nLetti);
        return nLetti;
    });
}

} // namespace ordavel
