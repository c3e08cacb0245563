// The texts of the options in every language.
#pragma once

#include "l10n/options/ar.h"
#include "l10n/options/de.h"
#include "l10n/options/el.h"
#include "l10n/options/en.h"
#include "l10n/options/es.h"
#include "l10n/options/fr.h"
#include "l10n/options/hi.h"
#include "l10n/options/id.h"
#include "l10n/options/it.h"
#include "l10n/options/ja.h"
#include "l10n/options/ko.h"
#include "l10n/options/nl.h"
#include "l10n/options/pl.h"
#include "l10n/options/pt.h"
#include "l10n/options/ru.h"
#include "l10n/options/th.h"
#include "l10n/options/tr.h"
#include "l10n/options/uk.h"
#include "l10n/options/vi.h"
#include "l10n/options/zh.h"

namespace vorbel::L10n::options {

inline constexpr auto languages = std::to_array<LanguageTexts>({
    {AppLanguage::ru, ru}, {AppLanguage::en, en}, {AppLanguage::es, es}, {AppLanguage::fr, fr},
    {AppLanguage::de, de}, {AppLanguage::it, it}, {AppLanguage::pt, pt}, {AppLanguage::zh, zh},
    {AppLanguage::ja, ja}, {AppLanguage::ko, ko}, {AppLanguage::ar, ar}, {AppLanguage::hi, hi},
    {AppLanguage::tr, tr}, {AppLanguage::pl, pl}, {AppLanguage::nl, nl}, {AppLanguage::uk, uk},
    {AppLanguage::vi, vi}, {AppLanguage::th, th}, {AppLanguage::id, id}, {AppLanguage::el, el},
});

inline constexpr auto table = tableOf(optionKeys, languages);

} // namespace vorbel::L10n::options
