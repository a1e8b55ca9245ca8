// OrdavelVita_prova.cpp - the life of components: published, started, ended, in any order.

#include "ordavel/Ordavel.hpp"

#include "comune/Fallimenti.hpp"
#include "comune/PiattaformaProva.hpp"
#include "condizioni/ModTestoCelle.hpp"
#include "editor/F_PuntiSu.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>

namespace ordavel {
namespace {

using prove::NumeroErrore;
using prove::PiattaformaProva;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

/// A desktop that knows who was published when the statistics began and ended, and whether the dialogs that it
/// shows beside are still alive.
class PiattaformaVita : public PiattaformaProva {
public:
    std::unique_ptr<Statistica> CreaStatistica() override { return std::make_unique<StatisticaVita>(*this); }

    void MostraAccanto(Dialogo& dialogo) override
    {
        PiattaformaProva::MostraAccanto(dialogo);
        auto vivo = std::make_shared<int>();
        mostrato = vivo;
        dialogo.Visibile.Ascolta([vivo] {});
    }

    std::vector<std::pair<std::string, const Ordavel*>> aPassi;
    std::weak_ptr<int> mostrato; ///< as long as the dialog lives

private:
    class StatisticaVita : public Statistica {
    public:
        explicit StatisticaVita(PiattaformaVita& piattaforma) : m_Piattaforma(piattaforma) {}
        StatisticaVita(const StatisticaVita&) = delete;
        StatisticaVita& operator=(const StatisticaVita&) = delete;
        ~StatisticaVita() override { Segna("via"); }

        void Avvia() override { Segna("avvia"); }
        void Ferma() override { Segna("ferma"); }
        void MostraStatistica(std::int32_t /*nIdStatistica*/, std::int16_t /*nGioco*/) override {}

    private:
        void Segna(std::string_view sPasso)
        {
            m_Piattaforma.aPassi.emplace_back(sPasso, Ordavel::Pubblicato());
        }

        PiattaformaVita& m_Piattaforma;
    };
};

class OrdavelVita : public testing::Test {
protected:
    OrdavelVita() { EXPECT_EQ(Ordavel::Pubblicato(), nullptr); }
    OrdavelVita(const OrdavelVita&) = delete;
    OrdavelVita& operator=(const OrdavelVita&) = delete;
    ~OrdavelVita() override { EXPECT_EQ(Ordavel::Pubblicato(), nullptr); }

    PiattaformaProva piattaforma;
};

TEST_F(OrdavelVita, AllaNascitaSiPubblicaEAllaFineSiRitira)
{
    Ordavel sistema(piattaforma);
    EXPECT_EQ(Ordavel::Pubblicato(), &sistema);
    sistema.Deinit();
    EXPECT_EQ(Ordavel::Pubblicato(), nullptr);
}

TEST_F(OrdavelVita, LaStatisticaSiAvviaESiFermaUnaVolta)
{
    {
        Ordavel sistema(piattaforma);
        sistema.InizializzaProprieta();
        sistema.NuovoSistema();
        EXPECT_EQ(piattaforma.statistica.nAvvii, 1);
        EXPECT_EQ(piattaforma.statistica.nFermate, 0);
        sistema.Deinit();
        EXPECT_EQ(piattaforma.statistica.nFermate, 1);
        sistema.Deinit();
        EXPECT_EQ(Ordavel::Pubblicato(), nullptr);
    }
    EXPECT_EQ(piattaforma.statistica.nAvvii, 1);
    EXPECT_EQ(piattaforma.statistica.nFermate, 1);
}

TEST_F(OrdavelVita, UnaDeinitDimenticataSiFaAllaFine)
{
    {
        const Ordavel sistema(piattaforma);
    }
    EXPECT_EQ(Ordavel::Pubblicato(), nullptr);
    EXPECT_EQ(piattaforma.statistica.nAvvii, 1);
    EXPECT_EQ(piattaforma.statistica.nFermate, 1);
}

TEST_F(OrdavelVita, LaStatisticaTrovaIlSistemaPubblicatoFinoAllaSuaFine)
{
    PiattaformaVita vita;
    Ordavel sistema(vita);
    sistema.Deinit();
    EXPECT_THAT(vita.aPassi,
                ElementsAre(Pair("avvia", &sistema), Pair("ferma", &sistema), Pair("via", &sistema)));
}

TEST_F(OrdavelVita, VaPubblicatoLUltimoNatoEGliAltriNonLoRitirano)
{
    std::array<int, 3> aOrdine{0, 1, 2};
    do {
        std::array<std::unique_ptr<Ordavel>, 3> aSistemi;
        for (auto& sistema : aSistemi) {
            sistema = std::make_unique<Ordavel>(piattaforma);
            EXPECT_EQ(Ordavel::Pubblicato(), sistema.get());
        }
        for (const int i : aOrdine) {
            aSistemi[static_cast<std::size_t>(i)].reset();
            EXPECT_EQ(Ordavel::Pubblicato(), aSistemi[2].get()) << i;
        }
    } while (std::next_permutation(aOrdine.begin(), aOrdine.end()));
    EXPECT_EQ(piattaforma.statistica.nAvvii, 18);
    EXPECT_EQ(piattaforma.statistica.nFermate, 18);
}

TEST_F(OrdavelVita, LaDeinitDiUnVecchioNonRitiraIlNuovo)
{
    Ordavel vecchio(piattaforma);
    Ordavel nuovo(piattaforma);
    vecchio.Deinit();
    EXPECT_EQ(Ordavel::Pubblicato(), &nuovo);
    vecchio.Deinit();
    EXPECT_EQ(Ordavel::Pubblicato(), &nuovo);
}

TEST_F(OrdavelVita, ChiHaPersoIlPostoNonLoRiprende)
{
    const Ordavel vecchio(piattaforma);
    {
        const Ordavel nuovo(piattaforma);
    }
    EXPECT_EQ(Ordavel::Pubblicato(), nullptr);
    const Ordavel terzo(piattaforma);
    EXPECT_EQ(Ordavel::Pubblicato(), &terzo);
}

TEST_F(OrdavelVita, DueSistemiNonHannoNullaInComune)
{
    Ordavel uno(piattaforma);
    Ordavel due(piattaforma);
    uno.SelezionaNumero(7, true);
    uno.PoniClasse(9);
    uno.GetGridCond().Riga(1).sCondizione = "Ponte";
    EXPECT_EQ(due.ContaNumeriSel(), 0);
    EXPECT_EQ(due.classe(), 5);
    EXPECT_TRUE(due.GetGridCond().Vuota(1));
}

TEST_F(OrdavelVita, IlPulsanteDellaStatisticaLaMostraPerTipoEGioco)
{
    Ordavel sistema(piattaforma);
    sistema.Controlli().CmbTipoGioco.Indice.Poni(3);
    piattaforma.Gioca<DialogoCondizione>([](auto& dialogo) { dialogo.Premi(ePulsanteDialogo::statistica); });
    sistema.InsCondizione(TipoCondizione::ponte, "");
    EXPECT_THAT(piattaforma.statistica.aMostrate,
                ElementsAre(Pair(TrovaTipo(TipoCondizione::ponte)->nIdStatistica, 4)));
}

TEST_F(OrdavelVita, DopoLaFineIlPulsanteDellaStatisticaFallisceEBasta)
{
    Ordavel sistema(piattaforma);
    sistema.Deinit();
    piattaforma.Gioca<DialogoCondizione>([](auto& dialogo) {
        EXPECT_EQ(NumeroErrore([&] { dialogo.Premi(ePulsanteDialogo::statistica); }), 91);
        dialogo.Premi(ePulsanteDialogo::chiudi);
    });
    sistema.InsCondizione(TipoCondizione::ponte, "");
    EXPECT_THAT(piattaforma.statistica.aMostrate, IsEmpty());
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
}

TEST_F(OrdavelVita, DopoLaFineIlFallimentoDellaStatisticaSiMostra)
{
    Ordavel sistema(piattaforma);
    sistema.Deinit();
    piattaforma.Gioca<DialogoCondizione>([](auto& dialogo) { dialogo.Premi(ePulsanteDialogo::statistica); });
    sistema.InsCondizione(TipoCondizione::ponte, "");
    EXPECT_THAT(
        piattaforma.Messaggi(),
        ElementsAre(prove::Fallimento("OrdavelSis.InsCondizione", Errore(eErrore::oggetto, "Statistica"))));
    EXPECT_FALSE(sistema.Modificato());
}

TEST_F(OrdavelVita, LaFineChiudeLaNavigazione)
{
    PiattaformaVita vita;
    Ordavel sistema(vita);
    sistema.Toolbar2_ButtonClick("Naviga");
    EXPECT_THAT(vita.aMostrati, ElementsAre("F_NavigaSistema"));
    EXPECT_FALSE(vita.mostrato.expired());
    sistema.Deinit();
    EXPECT_TRUE(vita.mostrato.expired());
}

TEST_F(OrdavelVita, UnaNavigazioneApertaDopoLaFineSiChiudeConIlSistema)
{
    PiattaformaVita vita;
    {
        Ordavel sistema(vita);
        sistema.Deinit();
        sistema.Toolbar2_ButtonClick("Naviga");
        EXPECT_FALSE(vita.mostrato.expired());
    }
    EXPECT_TRUE(vita.mostrato.expired());
}

} // namespace
} // namespace ordavel
