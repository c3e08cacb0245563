#include "app/menu/MenuDiary.h"

#include "app/text/Texts.h"

#include <QDateTime>
#include <QLocale>

namespace vorbel {

namespace {

// Short date and short time as the player's system writes them, in the system's time zone. A system without a
// locale of its own leaves that to the player's language.
class DiaryDateFormatter {
public:
    [[nodiscard]] QString text(std::chrono::system_clock::time_point date, AppLanguage language) const {
        const auto milliseconds =
            std::chrono::duration_cast<std::chrono::milliseconds>(date.time_since_epoch());
        const QLocale locale =
            system_.language() == QLocale::C ? QLocale(QString::fromUtf8(rawValue(language))) : system_;
        return locale.toString(QDateTime::fromMSecsSinceEpoch(milliseconds.count()), QLocale::ShortFormat);
    }

private:
    QLocale system_ = QLocale::system();
};

const DiaryDateFormatter& diaryDateFormatter() {
    static const DiaryDateFormatter formatter;
    return formatter;
}

QString resultText(const DiaryEntry& entry, AppLanguage language) {
    return text("diary.entry.format", language,
                {L10n::tNamed(entry.resultKey, language), std::to_string(entry.xpGained)});
}

} // namespace

void MenuDiary::read(std::string json) {
    if (json == json_) {
        return;
    }
    beginResetModel();
    entries_ = decodeDiary(json);
    json_ = std::move(json);
    endResetModel();
    emit readAgain();
}

void MenuDiary::setLanguage(AppLanguage language) {
    language_ = language;
    if (!entries_.empty()) {
        emit dataChanged(index(0), index(rowCount() - 1));
    }
}

int MenuDiary::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant MenuDiary::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const DiaryEntry& entry = entries_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case dateRole:
        return diaryDateFormatter().text(entry.date, language_);
    case resultRole:
        return resultText(entry, language_);
    default:
        return {};
    }
}

QHash<int, QByteArray> MenuDiary::roleNames() const {
    return {{dateRole, "date"}, {resultRole, "result"}};
}

} // namespace vorbel
