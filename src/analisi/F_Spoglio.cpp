// F_Spoglio.cpp - "Spoglio vincite".

#include "analisi/F_Spoglio.hpp"

#include "analisi/ModConfronto.hpp"
#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <algorithm>
#include <array>

namespace ordavel {

namespace {

constexpr std::size_t kNumeriVincenti = 20;

/// The numbers of a text in parts, by their leading numeric parts; one part at least.
std::vector<double> Pezzi(std::string_view sTesto, std::string_view sSep)
{
    std::vector<double> aPezzi;
    for (const std::string_view sPezzo : Dividi(sTesto, sSep)) {
        aPezzi.push_back(LeggiNumero(sPezzo));
    }
    if (aPezzi.empty()) {
        aPezzi.push_back(0);
    }
    return aPezzi;
}

/// Which numbers a column can hit; a part that is no whole number hits nothing.
std::array<bool, 256> Vincenti(const std::vector<double>& aPezzi)
{
    std::array<bool, 256> aVincenti{};
    for (std::size_t n = 0; n < aVincenti.size(); ++n) {
        aVincenti[n] = std::find(aPezzi.begin(), aPezzi.end(), static_cast<double>(n)) != aPezzi.end();
    }
    return aVincenti;
}

Colonna ColonnaDa(const std::vector<double>& aPezzi)
{
    Colonna colonna;
    for (std::size_t i = 0; i < aPezzi.size(); ++i) {
        if (i >= colonna.aNumeri.size()) {
            Solleva(eErrore::indice);
        }
        colonna.aNumeri[i] = ComeIntero<std::uint8_t>(aPezzi[i]);
    }
    return colonna;
}

RigaElenco RigaVincita(std::size_t nColonna, const Colonna& colonna, std::int32_t nPunti)
{
    return {.sChiave = {},
            .sTesto = std::to_string(nColonna),
            .aSotto = {FormattaColonna(colonna.aNumeri, false), std::to_string(nPunti)},
            .bScelta = false};
}

} // namespace

F_Spoglio::F_Spoglio(OspiteDialoghi& ospite) : DialogoConferma(ospite, "F_Spoglio", "Spoglio vincite")
{
    ListView1.aTestate = {"Colonna", "Numeri", "Punti"};
    ListView2.aTestate = {"Id", "Condizione", "Punti", "Recupero", "Punti effettivi", "Esito"};
    ListView3.aTestate = {"Vincita", "Colonne"};
    for (const std::string_view sPagina : {"Vincite", "Confronto condizioni", "Riepilogo"}) {
        TabStrip1.Aggiungi(sPagina);
    }
    TabStrip1.Indice.AlCambio([this] { MostraPagina(); });
    TabStrip1.SelezionaPrima();
    LoadComboPuntiMin();
}

void F_Spoglio::LoadComboPuntiMin()
{
    CmbPuntiMin.AggiungiNumeri(1, 10);
    SelezionaCombo(Ospite().GetIdCmbTipoGioco() != 0 ? "3" : "2", CmbPuntiMin);
}

void F_Spoglio::MostraPagina()
{
    std::int32_t nPagina = 0;
    for (Elenco* pagina : {&ListView1, &ListView2, &ListView3}) {
        pagina->Visibile.Poni(nPagina++ == TabStrip1.Indice.Valore());
    }
}

void F_Spoglio::XPButton1(std::int32_t nIndice)
{
    if (nIndice != 0) {
        return Nascondi({});
    }
    if (verificaCoerenzacolonna()) {
        VerificaVincite(LeggiIntero<std::int32_t>(CmbPuntiMin.Testo()));
        GestioneConfrontoCond();
    }
}

bool F_Spoglio::verificaCoerenzacolonna()
{
    const std::vector<double> aPezzi = Pezzi(Text1.Testo.Valore(), ".");
    std::string sMessaggio;
    if (!std::all_of(aPezzi.begin(), aPezzi.end(), [](double n) { return n > 0 && n <= kNumeroMassimo; })) {
        sMessaggio = "Inserire numeri da 1 a 90";
    }
    if (aPezzi.size() > kNumeriVincenti) {
        sMessaggio = "La colonna vincente deve contenere massimo 20 numeri";
    }
    if (!sMessaggio.empty()) {
        Ospite().Desktop().MostraMessaggio(
            {.icona = eIcona::avviso, .sTitolo = {}, .sTesto = sMessaggio, .pulsanti = ePulsanti::ok});
    }
    return sMessaggio.empty();
}

void F_Spoglio::VerificaVincite(std::int32_t nPuntiMin)
{
    ConGestore(Ospite().Desktop(), "F_Spoglio.VerificaVincite", [&] {
        std::vector<Colonna> aColonne;
        static_cast<void>(Ospite().GetColonneSviluppo(aColonne));
        if (aColonne.size() == 1 && aColonne.front() == Colonna{}) {
            // The one record of zeros stands for none.
            aColonne.clear();
        }
        const auto aVincenti = Vincenti(Pezzi(Text1.Testo.Valore(), "."));
        const auto nClasse =
            static_cast<std::size_t>(std::clamp<std::int16_t>(Ospite().classe(), 0, kClasseMassima));
        Conteggi aConteggi;
        std::vector<RigaElenco> aRighe;
        for (std::size_t i = 0; i < aColonne.size(); ++i) {
            const auto nPunti = static_cast<std::int32_t>(
                std::count_if(aColonne[i].aNumeri.begin(), aColonne[i].aNumeri.begin() + nClasse,
                              [&](std::uint8_t nNumero) { return aVincenti[nNumero]; }));
            ++aConteggi[nPunti];
            if (nPunti >= nPuntiMin) {
                aRighe.push_back(RigaVincita(i + 1, aColonne[i], nPunti));
            }
        }
        ListView1.Righe.Poni(std::move(aRighe));
        ScriviRiepilogo(nPuntiMin, aConteggi);
        m_Ordine.Riordina(ListView1);
    });
}

void F_Spoglio::ScriviRiepilogo(std::int32_t nPuntiMin, const Conteggi& aConteggi)
{
    std::vector<RigaElenco> aRighe;
    for (std::int32_t nPunti = Ospite().classe(); nPunti >= nPuntiMin; --nPunti) {
        const std::int32_t nColonne = aConteggi(nPunti);
        aRighe.push_back({.sChiave = {},
                          .sTesto = "Vincite con " + std::to_string(nPunti) + " punti ",
                          .aSotto = {std::to_string(nColonne)},
                          .bScelta = false});
    }
    ListView3.Righe.Poni(std::move(aRighe));
}

void F_Spoglio::GestioneConfrontoCond()
{
    ConGestore(Ospite().Desktop(), "F_Spoglio.GestioneConfrontoCond", [&] {
        // A state of its own: what the last run counted stays to be looked at.
        StatoSviluppo stato;
        stato.aEmulatore = Ospite().UltimoSviluppo().aEmulatore;
        stato.bEmulatoreCaricato = Ospite().UltimoSviluppo().bEmulatoreCaricato;
        Tagli.reset();
        Tagli = ConfrontaCondizioni(ColonnaDa(Pezzi(Text1.Testo.Valore(), ",")), Ospite().GetGridCond(),
                                    Ospite().GetLbQuadroRec().Voci.Valore(), stato, ListView2);
    });
}

void F_Spoglio::ListView1_ColumnClick(std::int16_t nColonna)
{
    constexpr std::int16_t kNumeri = 2;
    m_Ordine.Clic(ListView1, nColonna, nColonna == kNumeri ? eTipoOrdine::testo : eTipoOrdine::numero);
}

} // namespace ordavel
