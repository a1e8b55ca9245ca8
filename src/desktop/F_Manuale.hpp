// F_Manuale.hpp - the manual, in a window of its own that may stay open.

#pragma once

#include "qt/Legami.hpp"
#include "qt/PiattaformaQt.hpp"

#include <QDialog>
#include <QTextBrowser>

class QListWidget;

namespace ordavel::desktop {

/// The text of the manual with its pictures, which are made smaller where they are wider than a page.
class TestoManuale : public QTextBrowser {
    Q_OBJECT

public:
    explicit TestoManuale(QWidget* padre);

    /// The headings of chapters, in order.
    [[nodiscard]] const QStringList& Capitoli() const noexcept { return m_aCapitoli; }

    /// Brings a chapter to the top, from 0.
    void VaiACapitolo(qsizetype nCapitolo);
    /// The same by the name that links within the manual have: "mettere-una-condizione".
    /// Gives    whether there is such a chapter
    bool VaiAdAncora(const QString& sAncora);

protected:
    QVariant loadResource(int nTipo, const QUrl& nome) override;

private:
    QStringList m_aCapitoli;
    QList<int> m_aPosti; ///< of the chapters in the document
};

/// Chapters on the left, the text on the right.
class F_Manuale : public QDialog {
    Q_OBJECT

public:
    explicit F_Manuale(QWidget* padre);

private:
    [[nodiscard]] QListWidget* NuovoIndice();

    qt::PiattaformaQt m_Piattaforma;
    qt::Legami m_Legami;
    TestoManuale* m_Testo;
};

/// The name by which links lead to a heading: small letters, blanks as "-", without other signs.
[[nodiscard]] QString AncoraDi(const QString& sTitolo);

} // namespace ordavel::desktop
