// F_VisualizzaColonne.hpp - the columns of the working file, 21 at a time.
//
// Only the rows on show are ever read, each by itself, so that a file of any size opens at once.

#pragma once

#include "editor/DialogoConferma.hpp"

namespace ordavel {

class ORDAVEL_EXPORT F_VisualizzaColonne : public DialogoConferma {
public:
    /// Rows on show.
    static constexpr std::int32_t kRigheMostrate = 21;

    /// Takes    sFileColonne   the working file; without it the slider is disabled and the list stays empty
    F_VisualizzaColonne(OspiteDialoghi& ospite, std::string sFileColonne);

    /// Shows the columns from the slider's place on; those behind the end of the file are passed over.
    void CaricaLista();

    Cursore Slider1;  ///< the first column on show, from 1
    Elenco ListView1; ///< "Colonna", "Numeri"

private:
    std::string m_sFileColonne;
};

} // namespace ordavel
