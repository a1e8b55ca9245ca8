// F_DelCondizioni.hpp - "Elimina condizioni": which conditions to delete.

#pragma once

#include "editor/LimitiRighe.hpp"

namespace ordavel {

class ORDAVEL_EXPORT F_DelCondizioni : public LimitiRighe {
public:
    explicit F_DelCondizioni(OspiteDialoghi& ospite)
        : LimitiRighe(ospite, "F_DelCondizioni", "Elimina condizioni")
    {}
};

} // namespace ordavel
