#include "l10n/Table.h"
#include "l10n/texts/ar.h"
#include "l10n/texts/de.h"
#include "l10n/texts/el.h"
#include "l10n/texts/en.h"
#include "l10n/texts/es.h"
#include "l10n/texts/fr.h"
#include "l10n/texts/hi.h"
#include "l10n/texts/id.h"
#include "l10n/texts/it.h"
#include "l10n/texts/ja.h"
#include "l10n/texts/ko.h"
#include "l10n/texts/nl.h"
#include "l10n/texts/pl.h"
#include "l10n/texts/pt.h"
#include "l10n/texts/ru.h"
#include "l10n/texts/th.h"
#include "l10n/texts/tr.h"
#include "l10n/texts/uk.h"
#include "l10n/texts/vi.h"
#include "l10n/texts/zh.h"

namespace vorbel::L10n {

namespace {

constexpr auto languages = std::to_array<LanguageTexts>({
    {AppLanguage::ru, texts::ru}, {AppLanguage::en, texts::en}, {AppLanguage::es, texts::es},
    {AppLanguage::fr, texts::fr}, {AppLanguage::de, texts::de}, {AppLanguage::it, texts::it},
    {AppLanguage::pt, texts::pt}, {AppLanguage::zh, texts::zh}, {AppLanguage::ja, texts::ja},
    {AppLanguage::ko, texts::ko}, {AppLanguage::ar, texts::ar}, {AppLanguage::hi, texts::hi},
    {AppLanguage::tr, texts::tr}, {AppLanguage::pl, texts::pl}, {AppLanguage::nl, texts::nl},
    {AppLanguage::uk, texts::uk}, {AppLanguage::vi, texts::vi}, {AppLanguage::th, texts::th},
    {AppLanguage::id, texts::id}, {AppLanguage::el, texts::el},
});

} // namespace

constexpr Table<keys.size()> table = tableOf(keys, languages);

} // namespace vorbel::L10n
