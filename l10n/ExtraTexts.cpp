#include "l10n/Table.h"
#include "l10n/extra/ar.h"
#include "l10n/extra/de.h"
#include "l10n/extra/el.h"
#include "l10n/extra/en.h"
#include "l10n/extra/es.h"
#include "l10n/extra/fr.h"
#include "l10n/extra/hi.h"
#include "l10n/extra/id.h"
#include "l10n/extra/it.h"
#include "l10n/extra/ja.h"
#include "l10n/extra/ko.h"
#include "l10n/extra/nl.h"
#include "l10n/extra/pl.h"
#include "l10n/extra/pt.h"
#include "l10n/extra/ru.h"
#include "l10n/extra/th.h"
#include "l10n/extra/tr.h"
#include "l10n/extra/uk.h"
#include "l10n/extra/vi.h"
#include "l10n/extra/zh.h"

namespace vorbel::L10n {

namespace {

constexpr auto languages = std::to_array<LanguageTexts>({
    {AppLanguage::ru, extra::ru}, {AppLanguage::en, extra::en}, {AppLanguage::es, extra::es},
    {AppLanguage::fr, extra::fr}, {AppLanguage::de, extra::de}, {AppLanguage::it, extra::it},
    {AppLanguage::pt, extra::pt}, {AppLanguage::zh, extra::zh}, {AppLanguage::ja, extra::ja},
    {AppLanguage::ko, extra::ko}, {AppLanguage::ar, extra::ar}, {AppLanguage::hi, extra::hi},
    {AppLanguage::tr, extra::tr}, {AppLanguage::pl, extra::pl}, {AppLanguage::nl, extra::nl},
    {AppLanguage::uk, extra::uk}, {AppLanguage::vi, extra::vi}, {AppLanguage::th, extra::th},
    {AppLanguage::id, extra::id}, {AppLanguage::el, extra::el},
});

} // namespace

constexpr Table<extraKeys.size()> extraTable = complete(tableOf(extraKeys, languages));

} // namespace vorbel::L10n
