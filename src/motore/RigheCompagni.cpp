// RigheCompagni.cpp - pairs of a beginning, and those that its last two numbers close.
//
// A pair counts once, at its lower number, so that the count of a column is the number of its pairs: at most half of its
// numbers. The next-to-last number closes a pair when it is a partner of the beginning, the last one when it is a
// partner of the beginning or of the next-to-last.

#include "motore/RigheCompagni.hpp"

#include <algorithm>
#include <cstring>

namespace ordavel {

namespace {

using Gruppo [[gnu::vector_size(kAffiancate * sizeof(std::uint64_t))]] = std::uint64_t;

[[gnu::always_inline]] inline void Prendi(Gruppo& gruppo, const std::uint64_t* aParole)
{
    std::memcpy(&gruppo, aParole, sizeof gruppo);
}

[[gnu::always_inline]] inline void Posa(const Gruppo& gruppo, std::uint64_t* aParole)
{
    std::memcpy(aParole, &gruppo, sizeof gruppo);
}

/// All bits in the lanes of the places that close a pair. The number that closes one is above 45, so that at most 44
/// picks stand above it, and its bit is in the low word.
[[gnu::always_inline]] inline void Chiudono(const TabelleCompagni& tabelle, Maschera attesi,
                                            std::size_t nPosto, Gruppo& chiudono)
{
    Prendi(chiudono, tabelle.bit.aBasse.data() + nPosto);
    chiudono = static_cast<Gruppo>((chiudono & attesi.nBassa) != 0);
}

/// The last numbers of eight places: those whose pairs are flagged.
/// Takes    fine   the last numbers that close a pair
[[gnu::always_inline]] inline void Scegli(const std::array<std::uint64_t, 3>& aFlag, const Gruppo& chiudono,
                                          const Gruppo& fine, const Gruppo& sopra, Gruppo& scelte)
{
    const Gruppo aperta = (aFlag[0] & ~chiudono) | (aFlag[1] & chiudono);
    const Gruppo chiusa = (aFlag[1] & ~chiudono) | (aFlag[2] & chiudono);
    scelte = ((aperta & ~fine) | (chiusa & fine)) & sopra;
}

/// One word of the masks.
struct Parole {
    const std::uint64_t* aCompagni;
    const std::uint64_t* aSopra;
    std::uint64_t nAttesi;
    std::uint64_t* aOk;
    std::uint64_t* aRec;
};

[[gnu::always_inline]] inline void Componi(const InizioCompagni& inizio, const Parole& parole,
                                           std::size_t nPosto, const Gruppo& chiudono, Gruppo& recuperi)
{
    Gruppo fine;
    Gruppo sopra;
    Gruppo scelte;
    Prendi(fine, parole.aCompagni + nPosto);
    Prendi(sopra, parole.aSopra + nPosto);
    fine |= parole.nAttesi;
    Scegli(inizio.aOk, chiudono, fine, sopra, scelte);
    Posa(scelte, parole.aOk + nPosto);
    Scegli(inizio.aRec, chiudono, fine, sopra, scelte);
    Posa(scelte, parole.aRec + nPosto);
    recuperi |= scelte;
}

[[gnu::always_inline]] inline void Riga(const TabelleCompagni& tabelle, const InizioCompagni& inizio,
                                        RigaAutoma& riga)
{
    const Parole basse{tabelle.compagni.aBasse.data(), tabelle.sopra.aBasse.data(), inizio.attesi.nBassa,
                       riga.ok.aBasse.data(), riga.rec.aBasse.data()};
    const Parole alte{tabelle.compagni.aAlte.data(), tabelle.sopra.aAlte.data(), inizio.attesi.nAlta,
                      riga.ok.aAlte.data(), riga.rec.aAlte.data()};
    Gruppo recuperi{};
    for (std::size_t y = inizio.nPrimo; y + 1 < tabelle.nScelti; y += kAffiancate) {
        Gruppo chiudono;
        Chiudono(tabelle, inizio.attesi, y, chiudono);
        Componi(inizio, basse, y, chiudono, recuperi);
        if (y + 65 < tabelle.nScelti) { // more than 64 places stand above the first of the eight
            Componi(inizio, alte, y, chiudono, recuperi);
        }
    }
    std::uint64_t nRecuperi = 0;
    for (std::size_t i = 0; i < kAffiancate; ++i) {
        nRecuperi |= recuperi[i];
    }
    riga.bRecuperi = nRecuperi != 0;
}

void RigaComune(const TabelleCompagni& tabelle, const InizioCompagni& inizio, RigaAutoma& riga)
{
    Riga(tabelle, inizio, riga);
}

ORDAVEL_AVX2 void RigaAvx2(const TabelleCompagni& tabelle, const InizioCompagni& inizio, RigaAutoma& riga)
{
    Riga(tabelle, inizio, riga);
}

ORDAVEL_AVX512 void RigaAvx512(const TabelleCompagni& tabelle, const InizioCompagni& inizio, RigaAutoma& riga)
{
    Riga(tabelle, inizio, riga);
}

/// The partner of a number: what makes 91 with it, or what is 45 away.
std::uint8_t Compagno(TipoCondizione tipo, std::uint8_t nNumero)
{
    constexpr int kMeta = kNumeroMassimo / 2;
    const int nLontano = nNumero > kMeta ? nNumero - kMeta : nNumero + kMeta;
    return static_cast<std::uint8_t>(tipo == TipoCondizione::simmetrieNum ? kNumeroMassimo + 1 - nNumero
                                                                          : nLontano);
}

bool Comprende(Maschera maschera, Maschera bit) noexcept
{
    return !(maschera & bit).Vuota();
}

} // namespace

const std::array<RigheCompagni::Nucleo, 3> RigheCompagni::kNuclei{RigaComune, RigaAvx2, RigaAvx512};

RigheCompagni::RigheCompagni(const RecordCondizione& record, std::int16_t nClasse,
                             std::span<const std::uint8_t> aScelti, eNucleo nucleo)
    : m_nClasse(nClasse),
      m_aOk(record.PuntiOk),
      m_aRec(record.PuntiRec),
      m_Nucleo(kNuclei[static_cast<std::size_t>(nucleo)])
{
    const std::size_t nScelti = aScelti.size();
    m_Tabelle.nScelti = nScelti;
    for (std::size_t y = 0; y < nScelti; ++y) {
        const auto compagno = std::ranges::find(aScelti, Compagno(record.Tipo, aScelti[y]));
        const auto nCompagno = static_cast<std::size_t>(compagno - aScelti.begin());
        m_aPosti[aScelti[y]] = static_cast<std::uint8_t>(y);
        m_Tabelle.bit.Poni(y, BitDelPosto(nScelti, y));
        m_Tabelle.compagni.Poni(y, nCompagno < nScelti ? BitDelPosto(nScelti, nCompagno) : Maschera{});
        m_Tabelle.sopra.Poni(y, PostiSopra(nScelti, y));
    }
}

const RigaAutoma& RigheCompagni::Riga(const Colonna& inizio, std::size_t nPrimo)
{
    std::int32_t nCoppie = 0;
    m_Inizio.nPrimo = nPrimo;
    m_Inizio.attesi = {};
    for (std::int16_t k = 1; k <= m_nClasse - 2; ++k) {
        const std::size_t nPosto = m_aPosti[inizio[k]];
        nCoppie += Comprende(m_Inizio.attesi, m_Tabelle.bit[nPosto]) ? 1 : 0;
        m_Inizio.attesi.nAlta |= m_Tabelle.compagni[nPosto].nAlta;
        m_Inizio.attesi.nBassa |= m_Tabelle.compagni[nPosto].nBassa;
    }
    for (std::size_t i = 0; i < m_Inizio.aOk.size(); ++i) {
        const std::int32_t nPiu = nCoppie + static_cast<std::int32_t>(i);
        m_Inizio.aOk[i] = m_aOk[nPiu] != 0 ? ~std::uint64_t{0} : 0;
        m_Inizio.aRec[i] = m_aRec[nPiu] != 0 ? ~std::uint64_t{0} : 0;
    }
    m_Nucleo(m_Tabelle, m_Inizio, m_Riga);
    return m_Riga;
}

} // namespace ordavel
