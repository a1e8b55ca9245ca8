// ModFileSistema_prova.cpp - the system file.

#include "persistenza/ModFileSistema.hpp"

#include "comune/Esadecimale.hpp"
#include "comune/Fallimenti.hpp"
#include "persistenza/SistemaCasuale.hpp"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <filesystem>

namespace ordavel {
namespace {

using prove::ApriTesto;
using prove::CartellaProva;
using prove::DaEsadecimale;
using prove::ParteUguale;
using prove::TestoSistema;

constexpr std::string_view kMarchio = "SISTOCX";

std::optional<ParteSistema> Leggi(std::string_view sByte)
{
    return LeggiParteSistema(std::as_bytes(std::span(sByte)));
}

/// The system of prove/dati/buoni/sistema.hex, field by field.
ParteSistema ParteEsempio()
{
    ParteSistema parte;
    parte.nClasse = 3;
    parte.nRiduzione = 1;
    for (const int nNumero : {1, 2, 3, 4, 11, 90}) {
        parte.aNumeri(nNumero) = kVero;
    }
    parte.aQuadroRec(1) = {.Attiva = kVero, .MinPunti = 1, .MaxPunti = 2};
    RecordCondizione& peso = parte.aCondizioni.emplace_back();
    peso.Tipo = TipoCondizione::peso;
    peso.Numeri(1) = peso.Numeri(2) = peso.Numeri(3) = kVero;
    peso.OkMin = 6;
    peso.OkMax = 300;
    peso.RecMin = 5;
    peso.RecMax = 400;
    peso.IdRecupero = 1;
    peso.Valore = 104;
    peso.ContaKo = 1;
    peso.ContaOk = 19;
    peso.ContaRec = 20;
    peso.Esito = peso.EsitoRec = kVero;
    return parte;
}

std::string ByteEsempio()
{
    return DaEsadecimale(prove::TestoBuono("sistema.hex"));
}

TEST(ModFileSistema, IlFileDEsempioSiLegge)
{
    const CartellaProva cartella;
    FileBinario file = ApriTesto(cartella / "s", ByteEsempio());
    EXPECT_EQ(LeggiParteSistema(file), ParteEsempio());
    EXPECT_EQ(TrovaInizioColonne(file), 659);
    EXPECT_EQ(LunghezzaParteSistema(file), 651);
}

TEST(ModFileSistema, IlFileDEsempioSiScriveBytePerByte)
{
    const CartellaProva cartella;
    prove::ScriviFile(cartella / "c", DaEsadecimale(prove::TestoBuono("colonne.hex")));
    const ParteSistema parte = ParteEsempio();
    FileBinario file(cartella / "s", eApertura::scrittura);
    file.Accoda(ComponiParteSistema(parte, parte.aCondizioni));
    AppendiColonne(cartella / "c", file);
    file.Chiudi();
    EXPECT_EQ(prove::LeggiFile(cartella / "s"), ByteEsempio());
}

TEST(ModFileSistema, IlDocumentoMostraIlFileDEsempio)
{
    EXPECT_THAT(prove::TestoFormato("sistema.md"), testing::HasSubstr(prove::TestoBuono("sistema.hex")));
}

TEST(ModFileSistema, UnSistemaSenzaCondizioniOccupa317Byte)
{
    const std::string sByte = TestoSistema(ParteUguale(0));
    EXPECT_EQ(sByte.size(), 317);
    EXPECT_EQ(Leggi(sByte), ParteUguale(0));
}

TEST(ModFileSistema, LeCondizioniSiPrendonoDallArgomento)
{
    ParteSistema parte = ParteUguale(3);
    const std::vector<RecordCondizione> aAltre(1);
    const auto aByte = ComponiParteSistema(parte, aAltre);
    parte.aCondizioni = aAltre;
    EXPECT_EQ(LeggiParteSistema(aByte), parte);
}

TEST(ModFileSistema, UnFileDi316ByteNonSiLegge)
{
    const CartellaProva cartella;
    FileBinario file = ApriTesto(cartella / "s", std::string(316, '\0'));
    EXPECT_EQ(LeggiParteSistema(file), std::nullopt);
}

TEST(ModFileSistema, UnaLunghezzaCheNonTornaNonSiLegge)
{
    for (const std::size_t nByte : {0U, 1U, 191U, 316U, 318U, 650U, 652U, 668318U}) {
        EXPECT_EQ(Leggi(std::string(nByte, '\0')), std::nullopt) << nByte;
    }
}

TEST(ModFileSistema, UnMarchioEstraneoSiLeggeSenzaProteste)
{
    std::string sByte = TestoSistema(ParteEsempio());
    sByte.replace(0, kMarchio.size(), "ESTERNO");
    EXPECT_EQ(Leggi(sByte), ParteEsempio());
}

TEST(ModFileSistema, ValoriSenzaSensoSiLeggonoComeSono)
{
    const auto parte = Leggi(std::string(317 + 334, '\xFF'));
    ASSERT_TRUE(parte.has_value());
    EXPECT_EQ(parte->nClasse, -1);
    EXPECT_EQ(parte->nRiduzione, -1);
    EXPECT_EQ(parte->aNumeri(90), -1);
    EXPECT_EQ(parte->aQuadroRec(20), (VoceRecupero{.Attiva = -1, .MinPunti = -1, .MaxPunti = -1}));
    ASSERT_EQ(parte->aCondizioni.size(), 1);
    EXPECT_EQ(static_cast<int>(parte->aCondizioni[0].Tipo), -1);
}

TEST(ModFileSistema, DuemilaCondizioniSiLeggonoUnaDiPiuNo)
{
    EXPECT_EQ(Leggi(TestoSistema(ParteUguale(2000))), ParteUguale(2000));
    EXPECT_EQ(Leggi(TestoSistema(ParteUguale(2001))), std::nullopt);
}

TEST(ModFileSistema, DuemilaCondizioniConColonneSiLeggono)
{
    const CartellaProva cartella;
    FileBinario file = ApriTesto(cartella / "s", TestoSistema(ParteUguale(2000)) + "COLONNE" + "012345");
    EXPECT_EQ(LeggiParteSistema(file), ParteUguale(2000));
    EXPECT_EQ(TrovaInizioColonne(file), 0);
}

TEST(ModFileSistema, LeColonneSiTrovanoFinoA199Condizioni)
{
    const CartellaProva cartella;
    FileBinario ultima = ApriTesto(cartella / "a", TestoSistema(ParteUguale(199)) + "COLONNE");
    EXPECT_EQ(TrovaInizioColonne(ultima), 66791);
    FileBinario lunga = ApriTesto(cartella / "b", TestoSistema(ParteUguale(200)) + "COLONNE");
    EXPECT_EQ(TrovaInizioColonne(lunga), 0);
    EXPECT_EQ(LeggiParteSistema(lunga), ParteUguale(200));
}

TEST(ModFileSistema, UnFileEstraneoEnormeNonEntraInMemoria)
{
    // A sparse file whose length fits: loading it would ask for more memory than there is.
    const CartellaProva cartella;
    constexpr std::int64_t nCondizioni = 200'000'000;
    prove::ScriviFile(cartella / "s", "");
    std::filesystem::resize_file(cartella / "s", 317 + nCondizioni * 334);
    FileBinario file(cartella / "s", eApertura::lettura);
    EXPECT_EQ(LeggiParteSistema(file), std::nullopt);
    EXPECT_EQ(TrovaInizioColonne(file), 0);
}

TEST(ModFileSistema, LaMarcaDentroUnRecordTagliaLaParte)
{
    // The format has no escape: the first occurrence of the word is the marker.
    const CartellaProva cartella;
    std::string sByte = TestoSistema(ParteUguale(2));
    sByte.replace(700, 7, "COLONNE");
    FileBinario file = ApriTesto(cartella / "s", sByte);
    EXPECT_EQ(LunghezzaParteSistema(file), 700);
    EXPECT_EQ(LeggiParteSistema(file), std::nullopt);
}

TEST(ModFileSistema, TagliatoOvunqueSiLeggeSoloDoveTorna)
{
    const CartellaProva cartella;
    const std::string sIntero = ByteEsempio();
    ParteSistema senzaCondizioni = ParteEsempio();
    senzaCondizioni.aCondizioni.clear();
    for (std::size_t nByte = 0; nByte <= sIntero.size(); ++nByte) {
        FileBinario file = ApriTesto(cartella / std::to_string(nByte), sIntero.substr(0, nByte));
        std::optional<ParteSistema> atteso;
        if (nByte == 317) {
            atteso = senzaCondizioni;
        } else if (nByte == 651 || nByte >= 658) {
            atteso = ParteEsempio();
        }
        EXPECT_EQ(LeggiParteSistema(file), atteso) << nByte;
        EXPECT_EQ(TrovaInizioColonne(file), nByte >= 658 ? 659 : 0) << nByte;
    }
}

/// What must come of a file with one byte changed: the same system where the mark or the columns were hit,
/// nothing where the marker was, elsewhere another system that is written with the changed byte.
void ControllaGuasto(FileBinario& file, const std::string& sGuasto, std::size_t nPosto)
{
    const auto parte = LeggiParteSistema(file);
    if (nPosto >= 651 && nPosto < 658) {
        EXPECT_EQ(parte, std::nullopt);
        return;
    }
    ASSERT_TRUE(parte.has_value());
    ASSERT_EQ(parte->aCondizioni.size(), 1);
    std::string sAtteso = sGuasto.substr(0, 651);
    sAtteso.replace(0, kMarchio.size(), kMarchio);
    EXPECT_EQ(TestoSistema(*parte), sAtteso);
}

TEST(ModFileSistema, UnByteGuastoCambiaUnValoreONonSiLegge)
{
    const CartellaProva cartella;
    for (std::size_t i = 0; i < ByteEsempio().size(); ++i) {
        for (const int nBit : {0x01, 0x20, 0x80, 0xFF}) {
            std::string sGuasto = ByteEsempio();
            sGuasto[i] = static_cast<char>(sGuasto[i] ^ nBit);
            SCOPED_TRACE(testing::Message() << "byte " << i << ", bit " << nBit);
            FileBinario file = ApriTesto(cartella / "s", sGuasto);
            ControllaGuasto(file, sGuasto, i);
        }
    }
}

RC_GTEST_PROP(ModFileSistema, UnaParteScrittaSiRileggeUguale, ())
{
    const ParteSistema parte = prove::ParteCasuale();
    const auto aByte = ComponiParteSistema(parte, parte.aCondizioni);
    RC_ASSERT(aByte.size() == 317 + 334 * parte.aCondizioni.size());
    RC_ASSERT(LeggiParteSistema(aByte) == parte);
}

RC_GTEST_PROP(ModFileSistema, LettoERiscrittoRestaUgualeBytePerByte, ())
{
    const auto nCondizioni = *rc::gen::inRange<std::size_t>(0, 5);
    std::string sByte = *rc::gen::container<std::string>(317 + nCondizioni * 334, rc::gen::arbitrary<char>());
    sByte.replace(0, kMarchio.size(), kMarchio);
    const auto parte = Leggi(sByte);
    RC_ASSERT(parte.has_value());
    RC_ASSERT(TestoSistema(*parte) == sByte);
}

} // namespace
} // namespace ordavel
