// The texts of what is spoken in every language.
#pragma once

#include "l10n/spoken/ar.h"
#include "l10n/spoken/de.h"
#include "l10n/spoken/el.h"
#include "l10n/spoken/en.h"
#include "l10n/spoken/es.h"
#include "l10n/spoken/fr.h"
#include "l10n/spoken/hi.h"
#include "l10n/spoken/id.h"
#include "l10n/spoken/it.h"
#include "l10n/spoken/ja.h"
#include "l10n/spoken/ko.h"
#include "l10n/spoken/nl.h"
#include "l10n/spoken/pl.h"
#include "l10n/spoken/pt.h"
#include "l10n/spoken/ru.h"
#include "l10n/spoken/th.h"
#include "l10n/spoken/tr.h"
#include "l10n/spoken/uk.h"
#include "l10n/spoken/vi.h"
#include "l10n/spoken/zh.h"

namespace vorbel::L10n::spoken {

inline constexpr auto languages = std::to_array<LanguageTexts>({
    {AppLanguage::ru, ru}, {AppLanguage::en, en}, {AppLanguage::es, es}, {AppLanguage::fr, fr},
    {AppLanguage::de, de}, {AppLanguage::it, it}, {AppLanguage::pt, pt}, {AppLanguage::zh, zh},
    {AppLanguage::ja, ja}, {AppLanguage::ko, ko}, {AppLanguage::ar, ar}, {AppLanguage::hi, hi},
    {AppLanguage::tr, tr}, {AppLanguage::pl, pl}, {AppLanguage::nl, nl}, {AppLanguage::uk, uk},
    {AppLanguage::vi, vi}, {AppLanguage::th, th}, {AppLanguage::id, id}, {AppLanguage::el, el},
});

inline constexpr auto table = tableOf(spokenKeys, languages);

} // namespace vorbel::L10n::spoken
