// F_NavigaSistema.hpp - "Naviga sistema": the conditions as a tree, each link a branch.

#pragma once

#include "editor/DialogoConferma.hpp"

namespace ordavel {

class ORDAVEL_EXPORT F_NavigaSistema : public DialogoConferma {
public:
    explicit F_NavigaSistema(OspiteDialoghi& ospite)
        : DialogoConferma(ospite, "F_NavigaSistema", "Naviga sistema")
    {}

    /// Builds the tree anew, up to the first empty row. A "LinkClose" is the last child of its "LinkOpen" and shows
    /// its parameters behind its name.
    /// Fails    91: a "LinkClose" has no "LinkOpen"; the tree ends with it, and stays closed
    void LoadTree();

    /// A click on a node: selects its condition; the root selects the headings.
    /// Fails    9: there is no such node
    void Clic(std::string_view sChiave);

    Albero TreeView1; ///< root "sistema"; the condition n has the key "nCond" and the tag "n"

private:
    void AggiungiNodi(std::vector<NodoAlbero>& aNodi) const;
};

} // namespace ordavel
