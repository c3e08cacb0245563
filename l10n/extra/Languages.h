// The texts of the pages and screens in every language.
#pragma once

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

namespace vorbel::L10n::extra {

inline constexpr auto languages = std::to_array<LanguageTexts>({
    {AppLanguage::ru, ru}, {AppLanguage::en, en}, {AppLanguage::es, es}, {AppLanguage::fr, fr},
    {AppLanguage::de, de}, {AppLanguage::it, it}, {AppLanguage::pt, pt}, {AppLanguage::zh, zh},
    {AppLanguage::ja, ja}, {AppLanguage::ko, ko}, {AppLanguage::ar, ar}, {AppLanguage::hi, hi},
    {AppLanguage::tr, tr}, {AppLanguage::pl, pl}, {AppLanguage::nl, nl}, {AppLanguage::uk, uk},
    {AppLanguage::vi, vi}, {AppLanguage::th, th}, {AppLanguage::id, id}, {AppLanguage::el, el},
});

inline constexpr auto table = tableOf(pageKeys, languages);

} // namespace vorbel::L10n::extra
