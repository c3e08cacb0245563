// Further texts in Turkish.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto tr = std::to_array<Text>({
    {"end.equidistant.format", "Eşit uzaklık! Kırmızı +%@, Mavi +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "Oyunun sayfaları"},
    {"notice.endedBadly.format",
     "Oyun geçen sefer beklenmedik şekilde kapandı. Bununla ilgili bilinenler şu dosyada:\n%@"},

    {"page.boccia.title", "Boccia nedir?"},
    {"page.boccia.text",
     "Boccia, 1984’ten beri paralimpik olan, ağır yetersizliği bulunan sporcuların tekerlekli sandalyede "
     "oynadığı bir isabet sporudur. Her takımın kırmızı ya da mavi altı topu vardır; amaç bunları beyaz "
     "hedef topa (jack) olabildiğince yaklaştırmaktır."},
    {"page.licence", "Lisans"},
});

} // namespace vorbel::L10n::extra
