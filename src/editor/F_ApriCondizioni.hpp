// F_ApriCondizioni.hpp - "Apri condizioni": the conditions of a file, put behind those of the system.

#pragma once

#include "editor/DialogoConferma.hpp"

namespace ordavel {

class ORDAVEL_EXPORT F_ApriCondizioni : public DialogoConferma {
public:
    /// Offers the condition files of the folder of systems.
    explicit F_ApriCondizioni(OspiteDialoghi& ospite);

    /// Lists the condition files of the folder, without their extension, by name.
    void LoadComboCondizioni();

    /// Asks for another folder; giving up changes nothing.
    void Command1();

    /// Reads the chosen file into the preview, in place of what it shows.
    void Apri();

    /// Reads any file. A failure is shown under "F_ApriCondizioni.Apri", and the rows in front of it stay.
    void Apri(const std::string& sFile);

    Etichetta LabPercorso;     ///< the folder; a change lists it anew
    Combo CmbCondizioni;       ///< "File Condizione"; a choice reads the file
    GrigliaCondizioni GrdCond; ///< preview

protected:
    [[nodiscard]] std::string MessaggioCoerenza() const override;
    void Conferma() override;

private:
    void Inserisci();
};

} // namespace ordavel
