// The diary as a list, newest entry first. Its rows are made ready only when they are shown: a long diary
// opens as fast as a short one.
#pragma once

#include "career/Diary.h"
#include "l10n/AppLanguage.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace vorbel {

class MenuDiary : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the menu")

    Q_PROPERTY(bool empty READ isEmpty NOTIFY readAgain FINAL)

public:
    enum Role { dateRole = Qt::UserRole, resultRole };

    // Shows the diary that is stored as JSON; nothing of a damaged one. The same text is not read twice.
    void read(std::string json);
    void setLanguage(AppLanguage language);

    [[nodiscard]] bool isEmpty() const { return entries_.empty(); }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override; // texts
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void readAgain();

private:
    std::string json_;
    std::vector<DiaryEntry> entries_;
    AppLanguage language_ = defaultLanguage;
};

} // namespace vorbel
