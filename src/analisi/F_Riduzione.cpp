// F_Riduzione.cpp - "Riduzione colonne".

#include "analisi/F_Riduzione.hpp"

#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "persistenza/ModFileColonne.hpp"
#include "riduzione/ModRiduci2.hpp"

namespace ordavel {

namespace {

constexpr std::int32_t kRiduzioni = 3;
constexpr std::string_view kEsegui = "ESEGUI";
constexpr std::string_view kFerma = "STOP";

} // namespace

void F_Riduzione::AvanzamentoFinestra::MostraPercentuale(std::int16_t nPercentuale)
{
    m_Finestra.PanPerc.Valore.Poni(nPercentuale);
}

void F_Riduzione::AvanzamentoFinestra::MostraFase(std::string_view sFase)
{
    m_Finestra.LabInfo.Testo.Poni(std::string(sFase));
}

void F_Riduzione::AvanzamentoFinestra::MostraInterruzione()
{
    m_Finestra.Ospite().Desktop().MostraMessaggio({.icona = eIcona::informazione,
                                                   .sTitolo = {},
                                                   .sTesto = "Processo interrotto",
                                                   .pulsanti = ePulsanti::ok});
}

void F_Riduzione::AvanzamentoFinestra::LasciaEventi()
{
    Piattaforma& desktop = m_Finestra.Ospite().Desktop();
    if (m_Eventi.Scaduta(desktop.Adesso())) {
        desktop.LasciaEventi();
    }
}

void F_Riduzione::AvanzamentoFinestra::MostraFallimento(std::string_view sOrigine, const Errore& errore)
{
    m_Finestra.Ospite().Desktop().MostraFallimento(sOrigine, errore);
}

F_Riduzione::F_Riduzione(OspiteDialoghi& ospite) : DialogoConferma(ospite, "F_Riduzione", "Riduzione colonne")
{
    LoadCmbRid();
    CmbMotoreRid.Aggiungi("Interno");
    CmbMotoreRid.Aggiungi("Esterno");
    CmbMotoreRid.Indice.Poni(ospite.MotoreSviluppo() == eMotoreSviluppo::interno ? 0 : 1);
    XPButton1[0].Testo.Poni(std::string(kEsegui));
    XPButton1[1].Testo.Poni("CHIUDI");
    Timer1.nMillisecondi = 500;
    Timer1.scatto = [this] { Timer1_Timer(); };
    labFile.Testo.AlCambio([this] { CambioFile(); });
    cmbRiduzione.Indice.AlCambio([this] {
        LabColonneRid.Testo.Poni({});
        ModificaNomeOutput();
        XPButton1[0].Abilitato.Poni(true);
    });
}

void F_Riduzione::LoadCmbRid()
{
    for (std::int32_t n = 1; n <= kRiduzioni; ++n) {
        cmbRiduzione.Aggiungi("N - " + std::to_string(n));
    }
    cmbRiduzione.SelezionaPrima();
}

void F_Riduzione::Command1_Click()
{
    const std::string sFile = Ospite().Desktop().DialogoApri({.sTitolo = "Apri file",
                                                              .sFiltro = "File colonne (*.col)|*.col)",
                                                              .sEstensione = ".col",
                                                              .sNomeFile = "*.col",
                                                              .sCartella = Ospite().PercorsoSalvaColonne()});
    if (!sFile.empty() && FileEsiste(sFile)) {
        labFile.Testo.Poni(sFile);
        ModificaNomeOutput();
    }
}

void F_Riduzione::CambioFile()
{
    const std::string& sFile = labFile.Testo.Valore();
    Piattaforma& desktop = Ospite().Desktop();
    LabColonne.Testo.Poni(FormattaNumero(GetNumeroColonneInFile(sFile, desktop).value_or(0)));
    LabClasse.Testo.Poni(std::to_string(GetClasseColonneInFile(sFile, desktop)));
    labFile.Suggerimento.Poni(sFile);
    ModificaNomeOutput();
}

/// "test.col" with "N - 2" gives "test_Rid_N-2.col" in the same folder.
void F_Riduzione::ModificaNomeOutput()
{
    const std::string& sFile = labFile.Testo.Valore();
    if (FileEsiste(sFile)) {
        LabFileRidotto.Testo.Poni(CartellaDi(sFile) + SenzaEstensione(NomeDi(sFile)) + "_Rid_N-" +
                                  std::to_string(Riduzione()) + ".col");
    }
}

void F_Riduzione::XPButton1_Click(std::size_t nIndice)
{
    if (!XPButton1.at(nIndice).Abilitato.Valore()) {
        return;
    }
    nIndice == 0 ? GestioneEseguiRid() : Nascondi({});
}

void F_Riduzione::Timer1_Timer()
{
    if (!ConGestore(Ospite().Desktop(), "F_Riduzione.Timer1_Timer",
                    [&] { PanPerc.Valore.Poni(m_Libreria.GetPercProgRiduzione()); })) {
        Timer1.Acceso.Poni(false);
    }
}

void F_Riduzione::GestioneEseguiRid()
{
    XPButton1[0].Testo.Valore() == kEsegui ? Esegui() : Ferma();
}

void F_Riduzione::AbilitaComandi(bool bAbilita)
{
    XPButton1[1].Abilitato.Poni(bAbilita);
    cmbRiduzione.Abilitato.Poni(bAbilita);
    CmbMotoreRid.Abilitato.Poni(bAbilita);
    Command1.Abilitato.Poni(bAbilita);
}

/// Gives    whether the output is a reduction; a failure was shown
bool F_Riduzione::Riduci()
{
    return ConGestore(Ospite().Desktop(), "F_Riduzione.GestioneEseguiRid", [&] {
        // Copies: events may change the labels during the run.
        const std::string sFile = labFile.Testo.Valore();
        const std::string sRidotto = LabFileRidotto.Testo.Valore();
        RiduzioneSequenziale(sFile, sRidotto, Riduzione(), m_Avanzamento);
        LabColonneRid.Testo.Poni(std::to_string(DimensioneFile(sRidotto) / kByteColonna));
    });
}

void F_Riduzione::Esegui()
{
    XPButton1[0].Testo.Poni(std::string(kFerma));
    AbilitaComandi(false);
    const eMotoreSviluppo motore = Ospite().MotoreSviluppo();
    const bool bInterno = CmbMotoreRid.Testo() == "Interno";
    Ospite().PoniMotoreSviluppo(bInterno ? eMotoreSviluppo::interno : eMotoreSviluppo::esterno);
    Timer1.Acceso.Poni(!bInterno);
    Ospite().Desktop().LasciaEventi();
    m_bInterrotto = false;
    m_bInEsecuzione = true;
    LabColonneRid.Testo.Poni({});
    const float nInizio = Ospite().Desktop().SecondiDaMezzanotte();
    const bool bFatto = Riduci();
    m_bInEsecuzione = false;
    AbilitaComandi(true);
    Timer1.Acceso.Poni(false);
    PanPerc.Valore.Poni(0);
    Ospite().PoniMotoreSviluppo(motore);
    XPButton1[0].Testo.Poni(std::string(kEsegui));
    if (bFatto) {
        const float nSecondi = SecondiTrascorsi(nInizio, Ospite().Desktop().SecondiDaMezzanotte());
        Ospite().Desktop().MostraMessaggio(
            {.icona = eIcona::informazione,
             .sTitolo = {},
             .sTesto = "Fine" + std::string(kCrLf) +
                       FormattaTempo(static_cast<std::int64_t>(ArrotondaPari(static_cast<double>(nSecondi)))),
             .pulsanti = ePulsanti::ok});
    }
    if (m_bInterrotto) {
        Nascondi({});
    }
}

/// The run reads neither flag; it goes on to its end, and then the dialog closes.
void F_Riduzione::Ferma()
{
    ConGestore(Ospite().Desktop(), "F_Riduzione.GestioneEseguiRid", [&] {
        m_Libreria.StopRiduzioneDll();
        Ospite().StopRiduciColonne();
        m_bInterrotto = true;
    });
}

} // namespace ordavel
