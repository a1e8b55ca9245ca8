// F_Manuale.hpp - the manual, in a window of its own that may stay open.

#pragma once

#include <QDialog>

namespace ordavel::desktop {

class F_Manuale : public QDialog {
    Q_OBJECT

public:
    explicit F_Manuale(QWidget* padre);
};

} // namespace ordavel::desktop
