#pragma once

#include "league/clsFieldInfo.h"
#include "shell/RecordPane.h"

class FormBuilder;
class QPushButton;

/// One field at a time: where it is, whom to ask, what it has.
class FieldPane final : public RecordPane {
    Q_OBJECT

public:
    explicit FieldPane(Program& program);

private:
    Form* buildForm();
    void addFieldFrame(FormBuilder& builder);
    void addAddressFrame(FormBuilder& builder);
    bool find(const QString& entry) override { return field_.FindFieldRecord(entry, false, true); }
    QString name() const override { return field_.FieldName; }
    std::vector<Finding> check() const override;
    QString firstField() const override { return QStringLiteral("txtFieldName"); }
    void shown() override;

    clsFieldInfo field_;
    QPushButton* availability_;
};
