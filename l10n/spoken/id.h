// What is spoken, in Indonesian. A quantity has one form for every number.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto id = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ derajat"},
    {"unit.centimetres.format", "%@ sentimeter"},
    {"unit.metres.format", "%@ meter"},

    {"say.angle.left.format", "Sudut %@ ke kiri."},
    {"say.angle.right.format", "Sudut %@ ke kanan."},
    {"say.angle.ahead", "Lurus ke depan."},
    {"say.pitch.format", "Ketinggian %@."},
    {"say.power.format", "Kekuatan %@ dari 100."},

    {"say.jack.left.format", "Bola jack berjarak %@, %@ ke kiri."},
    {"say.jack.right.format", "Bola jack berjarak %@, %@ ke kanan."},
    {"say.jack.ahead.format", "Bola jack berjarak %@, lurus di depan."},
    {"say.jack.none", "Tidak ada bola jack di lapangan."},

    {"say.closest.red.format", "Merah terdekat, %@."},
    {"say.closest.blue.format", "Biru terdekat, %@."},
    {"say.closest.both.format", "Merah dan biru sama dekatnya, %@."},
    {"say.red.format", "Merah %@."},
    {"say.blue.format", "Biru %@."},
    {"say.ballsLeft.format", "Sisa bola: merah %@, biru %@."},
    {"say.score.format", "Skor: merah %@, biru %@."},

    {"say.rest.short.format", "Bola berhenti, %@ sebelum bola jack."},
    {"say.rest.beyond.format", "Bola berhenti, %@ melewati bola jack."},
    {"say.rest.level", "Bola berhenti, sejajar dengan bola jack."},
    {"say.rest.left.format", "%@ di sebelah kirinya."},
    {"say.rest.right.format", "%@ di sebelah kanannya."},
    {"say.rest.out", "Bola keluar."},
});

} // namespace vorbel::L10n::spoken
