#pragma once

#include "core/shell/KRBaseController.h"

/// A page of one sentence. As the root of a presented stack it has a close button, as that of the main frame
/// a button for the left menu, otherwise a back button.
class TZPlainPageController : public KRBaseController {
    Q_OBJECT
    Q_PROPERTY(QString text READ text CONSTANT)
public:
    TZPlainPageController(const QString &title, QString sentence);

    QString text() const { return sentence; }
    void viewDidLoad() override;
    void leftItemClick() override;
    void rightItemClick() override;

private:
    bool isContentRoot() const;

    QString sentence;
};
