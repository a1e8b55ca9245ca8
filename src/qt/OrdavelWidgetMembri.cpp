// OrdavelWidgetMembri.cpp - the members of the component, for who calls them by name.

#include "core/FileBinario.hpp"
#include "qt/FacciaOrdavel.hpp"
#include "qt/VistaGriglia.hpp"

#include <QAbstractItemModel>

namespace ordavel::qt {

namespace {

/// Numbers beyond the places of a column, and those that are no byte, are refused.
/// Fails    9
Colonna ColonnaDi(const QList<int>& aNumeri)
{
    Colonna colonna{};
    if (aNumeri.size() > static_cast<qsizetype>(colonna.aNumeri.size())) {
        Solleva(eErrore::indice);
    }
    for (qsizetype i = 0; i < aNumeri.size(); ++i) {
        if (aNumeri.at(i) < 0 || aNumeri.at(i) > kNumeroMassimo) {
            Solleva(eErrore::indice);
        }
        colonna.aNumeri[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(aNumeri.at(i));
    }
    return colonna;
}

/// A class, a number, a kind: what does not fit into 16 bits is failure 6.
std::int16_t Corto(int n)
{
    if (n < INT16_MIN || n > INT16_MAX) {
        Solleva(eErrore::overflow);
    }
    return static_cast<std::int16_t>(n);
}

} // namespace

QAbstractItemModel* OrdavelWidget::GetGridCond() const
{
    return m_p->m_Griglia->model();
}

QStringList OrdavelWidget::GetLbQuadroRec() const
{
    QStringList aLinee;
    for (const std::string& sLinea : m_p->m_Ordavel.GetLbQuadroRec().Voci.Valore()) {
        aLinee.append(Testo(sLinea));
    }
    return aLinee;
}

void OrdavelWidget::SetColonnaGrid(int nId)
{
    m_p->Protetto([&] { m_p->m_Ordavel.SetColonnaGrid(nId); });
}

QList<QList<int>> OrdavelWidget::GetColonneSviluppo()
{
    QList<QList<int>> aLette;
    m_p->Protetto([&] {
        std::vector<Colonna> aColonne;
        m_p->m_Ordavel.GetColonneSviluppo(aColonne);
        const int nClasse = classe();
        for (const Colonna& colonna : aColonne) {
            aLette.append(QList<int>(colonna.aNumeri.begin(), colonna.aNumeri.begin() + nClasse));
        }
    });
    return aLette;
}

QString OrdavelWidget::GetColonnaSviluppo(int nId)
{
    QString sColonna;
    m_p->Protetto([&] { sColonna = Testo(m_p->m_Ordavel.GetColonnaSviluppo(nId)); });
    return sColonna;
}

QString OrdavelWidget::GetColonnaSviluppoFromFile(int nId, const QString& sFile)
{
    QString sColonna;
    m_p->Protetto([&] {
        FileBinario file(Testo(sFile), eApertura::lettura);
        sColonna = Testo(m_p->m_Ordavel.GetColonnaSviluppoFromFile(nId, file));
    });
    return sColonna;
}

QList<int> OrdavelWidget::GetNumeriSel() const
{
    const NumeriScelti aNumeri = m_p->m_Ordavel.GetNumeriSel();
    QList<int> aScelti;
    for (std::int32_t i = 1; i <= kNumeroMassimo; ++i) {
        aScelti.append(aNumeri(i));
    }
    return aScelti;
}

int OrdavelWidget::ContaNumeriSel() const
{
    return m_p->m_Ordavel.ContaNumeriSel();
}

void OrdavelWidget::SelezionaNumero(int nNumero, bool bSelezionato)
{
    m_p->Protetto([&] { m_p->m_Ordavel.SelezionaNumero(Corto(nNumero), bSelezionato); });
}

void OrdavelWidget::InsCondizione(int t, const QString& sParam)
{
    m_p->Protetto(
        [&] { m_p->m_Ordavel.InsCondizione(static_cast<TipoCondizione>(Corto(t)), Testo(sParam)); });
}

void OrdavelWidget::AggiornaProgressSviluppoDll()
{
    m_p->Protetto([&] { m_p->m_Ordavel.AggiornaProgressSviluppoDll(); });
}

bool OrdavelWidget::GestSviluppo()
{
    bool bIniziato = false;
    m_p->Protetto([&] { bIniziato = m_p->m_Ordavel.GestSviluppo(); });
    return bIniziato;
}

bool OrdavelWidget::GestSviluppoDaFileColonne(const QString& sFileColonne)
{
    bool bIniziato = false;
    m_p->Protetto([&] { bIniziato = m_p->m_Ordavel.GestSviluppoDaFileColonne(Testo(sFileColonne)); });
    return bIniziato;
}

void OrdavelWidget::SelezionaComboMotSviluppo()
{
    m_p->m_Ordavel.SelezionaComboMotSviluppo();
}

void OrdavelWidget::SetNum(int nNum, bool bValore)
{
    m_p->Protetto([&] { m_p->m_Ordavel.SetNum(Corto(nNum), bValore); });
}

void OrdavelWidget::Deinit()
{
    m_p->m_Ordavel.Deinit();
}

double OrdavelWidget::ColonneIntegrali() const
{
    double nColonne = 0;
    m_p->Protetto([&] { nColonne = m_p->m_Ordavel.ColonneIntegrali(); });
    return nColonne;
}

int OrdavelWidget::QuantitaColonne() const
{
    int nColonne = 0;
    m_p->Protetto([&] { nColonne = m_p->m_Ordavel.QuantitaColonne(); });
    return nColonne;
}

bool OrdavelWidget::SalvaFileColonne()
{
    bool bSalvato = false;
    m_p->Protetto([&] { bSalvato = m_p->m_Ordavel.SalvaFileColonne(); });
    return bSalvato;
}

bool OrdavelWidget::SalvaFileColonneTesto()
{
    bool bSalvato = false;
    m_p->Protetto([&] { bSalvato = m_p->m_Ordavel.SalvaFileColonneTesto(); });
    return bSalvato;
}

void OrdavelWidget::RiduciColonne(const QString& sFileCol, int nPuntiRichiesti)
{
    m_p->Protetto([&] { m_p->m_Ordavel.RiduciColonne(Testo(sFileCol), nPuntiRichiesti); });
}

void OrdavelWidget::StopRiduciColonne()
{
    m_p->m_Ordavel.StopRiduciColonne();
}

int OrdavelWidget::GetIdCmbTipoGioco() const
{
    return m_p->m_Ordavel.GetIdCmbTipoGioco();
}

QString OrdavelWidget::GetIdCmbTipoGiocoString() const
{
    return Testo(m_p->m_Ordavel.GetIdCmbTipoGiocoString());
}

bool OrdavelWidget::VerificaCoerenzaLink()
{
    bool bCoerenti = false;
    m_p->Protetto([&] { bCoerenti = m_p->m_Ordavel.VerificaCoerenzaLink(); });
    return bCoerenti;
}

bool OrdavelWidget::IsCondizionePresente(const QString& sNome) const
{
    return m_p->m_Ordavel.IsCondizionePresente(Testo(sNome));
}

int OrdavelWidget::GetQuantitaColDaEmulareFromGrid() const
{
    int nQuante = 0;
    m_p->Protetto([&] { nQuante = m_p->m_Ordavel.GetQuantitaColDaEmulareFromGrid(); });
    return nQuante;
}

void OrdavelWidget::DisegnaNumeriProno()
{
    m_p->m_Ordavel.DisegnaNumeriProno();
}

void OrdavelWidget::SetcoloreCasellaNumeri(int nNumero, int nColor, int nForeColor)
{
    m_p->Protetto([&] { m_p->m_Ordavel.SetcoloreCasellaNumeri(Corto(nNumero), nColor, nForeColor); });
}

void OrdavelWidget::AnnullaExport()
{
    m_p->m_Ordavel.AnnullaExport();
}

int OrdavelWidget::CalcolaBaricentro(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaBaricentro(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaPonte(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaPonte(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaAmpiezza(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaAmpiezza(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaDistanzaMinima(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaDistanzaMinima(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaDistanzaMassima(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaDistanzaMassima(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaConsecutivi(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaConsecutivi(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaInterruzioniPD(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaInterruzioniPD(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaVorticeDiretto(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaVorticeDiretto(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaVorticeInverso(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaVorticeInverso(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaSimmetrieDirette(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaSimmetrieDirette(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaSimmetrieInverse(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaSimmetrieInverse(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaParalleliDiretti(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaParalleliDiretti(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaParalleliInversi(int nClasse, const QList<int>& col)
{
    return Ordavel::CalcolaParalleliInversi(Corto(nClasse), ColonnaDi(col));
}

int OrdavelWidget::CalcolaSequenze(int nClasse, const QList<int>& col, const QString& sSeq)
{
    return Ordavel::CalcolaSequenze(Corto(nClasse), ColonnaDi(col), Testo(sSeq));
}

QList<int> OrdavelWidget::CalcolaPuntiSequenze(int nClasse, const QList<int>& col, const QString& sSeq)
{
    std::int32_t nConsec = 0;
    const int nPunti = Ordavel::CalcolaPuntiSequenze(Corto(nClasse), ColonnaDi(col), Testo(sSeq), nConsec);
    return {nPunti, nConsec};
}

QString OrdavelWidget::fileBdLotto() const
{
    return Testo(m_p->m_Ordavel.FileBdLotto());
}

void OrdavelWidget::setFileBdLotto(const QString& sFile)
{
    m_p->m_Ordavel.PoniFileBdLotto(Testo(sFile));
}

QString OrdavelWidget::fileBd10Lotto() const
{
    return Testo(m_p->m_Ordavel.FileBd10Lotto());
}

void OrdavelWidget::setFileBd10Lotto(const QString& sFile)
{
    m_p->m_Ordavel.PoniFileBd10Lotto(Testo(sFile));
}

QString OrdavelWidget::fileBd10Lotto5M() const
{
    return Testo(m_p->m_Ordavel.FileBd10Lotto5M());
}

void OrdavelWidget::setFileBd10Lotto5M(const QString& sFile)
{
    m_p->m_Ordavel.PoniFileBd10Lotto5M(Testo(sFile));
}

QString OrdavelWidget::fileBdSE() const
{
    return Testo(m_p->m_Ordavel.FileBdSE());
}

void OrdavelWidget::setFileBdSE(const QString& sFile)
{
    m_p->m_Ordavel.PoniFileBdSE(Testo(sFile));
}

QString OrdavelWidget::fileBdWF() const
{
    return Testo(m_p->m_Ordavel.FileBdWF());
}

void OrdavelWidget::setFileBdWF(const QString& sFile)
{
    m_p->m_Ordavel.PoniFileBdWF(Testo(sFile));
}

} // namespace ordavel::qt
