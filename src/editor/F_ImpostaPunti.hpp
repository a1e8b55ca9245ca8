// F_ImpostaPunti.hpp - "Imposta punti": the same points for a run of conditions.

#pragma once

#include "editor/LimitiRighe.hpp"
#include "editor/PannelloPunti.hpp"

namespace ordavel {

class ORDAVEL_EXPORT F_ImpostaPunti : public LimitiRighe {
public:
    explicit F_ImpostaPunti(OspiteDialoghi& ospite)
        : LimitiRighe(ospite, "F_ImpostaPunti", "Imposta punti"), Pannello(ospite.classe())
    {}

    PannelloPunti Pannello; ///< which points, over the frame "Range condizioni"
};

} // namespace ordavel
