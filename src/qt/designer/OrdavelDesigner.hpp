// OrdavelDesigner.hpp - the component as Qt's form editor offers it.

#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

class OrdavelDesigner : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit OrdavelDesigner(QObject* padre = nullptr);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString group() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QString whatsThis() const override;
    [[nodiscard]] QString includeFile() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] QString domXml() const override;
    [[nodiscard]] bool isContainer() const override;
    [[nodiscard]] bool isInitialized() const override;

    void initialize(QDesignerFormEditorInterface* editor) override;

    /// In a form no folder is made and no box is shown.
    QWidget* createWidget(QWidget* padre) override;

private:
    bool m_bPronto = false;
    bool m_bEditor = false; ///< the form editor asks, not one that only loads forms
};
