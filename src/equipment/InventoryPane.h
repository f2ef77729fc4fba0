#pragma once

#include "equipment/clsEquip.h"
#include "shell/RecordPane.h"

#include <QHash>

class FormBuilder;

/// One kind of item at a time: what it is, how many of it the league owns, where it came from, how it is insured.
class InventoryPane final : public RecordPane {
    Q_OBJECT

public:
    explicit InventoryPane(Program& program);

private:
    /// The names that a field chooses from, with the ids that the record keeps.
    struct Choices {
        QStringList names{};
        QHash<QString, int> idByName{};
        QHash<int, QString> nameById{};
    };

    Form* buildForm();
    void addItemFrame(FormBuilder& builder);
    void addPurchaseFrame(FormBuilder& builder);
    void addInsuranceFrame(FormBuilder& builder);
    void LoadEquipmentDataControls();
    Choices read(const QString& query, const QString& idColumn) const;

    bool find(const QString& entry) override { return item_.FindEquipmentRecord(entry, false, true); }
    QString name() const override { return item_.EquipmentName; }
    QString entry() const override { return item_.EquipmentName() + " - " + item_.EquipmentDescription(); }
    std::vector<Finding> check() const override;
    QString firstField() const override { return QStringLiteral("txtItemName"); }
    QString deleteQuestion() const override;
    void readChoices() override;

    clsEquip item_;
    Choices vendors_;
    Choices agencies_;
};
