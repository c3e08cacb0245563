// Further texts in Indonesian.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto id = std::to_array<Text>({
    {"end.equidistant.format", "Jarak sama! Merah +%@, Biru +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "Halaman permainan"},
    {"notice.endedBadly.format",
     "Terakhir kali permainan berhenti secara tak terduga. Yang diketahui tentangnya ada di berkas ini:\n%@"},

    {"page.boccia.title", "Apa itu boccia?"},
    {"page.boccia.text",
     "Boccia adalah olahraga ketepatan, cabang Paralimpiade sejak 1984, yang dimainkan di kursi roda oleh "
     "atlet dengan disabilitas berat. Setiap tim memiliki enam bola, merah atau biru, dan berusaha "
     "menempatkannya sedekat mungkin dengan bola putih, yaitu bola jack."},
    {"page.licence", "Lisensi"},
});

} // namespace vorbel::L10n::extra
