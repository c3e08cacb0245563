// Indonesian texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto id = std::to_array<Text>({
    {"team.red", "Merah"},
    {"team.blue", "Biru"},
    {"team.red.caps", "MERAH"},
    {"team.blue.caps", "BIRU"},

    {"label.score", "Skor:"},
    {"label.ballsLeft", "Bola:"},
    {"label.end", "End"},

    {"menu.matchResult", "Hasil Pertandingan"},
    {"menu.nextRound", "Babak Berikutnya"},
    {"menu.mainMenu", "Menu Utama"},

    {"label.end.format", "End %@ dari 4"},
    {"label.playingAs.format", "Mewakili: %@ · Kelas %@"},
    {"label.rampHint", "Ramp: bola menggelinding di lantai, [↑][↓] nonaktif"},
    {"label.aiDifficulty", "Tingkat kesulitan AI"},
    {"label.throwPower", "Kekuatan lemparan"},
    {"label.aiToggle", "AI"},

    {"difficulty.easy", "Mudah"},
    {"difficulty.medium", "Sedang"},
    {"difficulty.hard", "Sulit"},
    {"difficulty.ultra", "Ekstrem"},

    {"menu.language", "Bahasa"},
    {"menu.gameMenu", "Permainan"},
    {"menu.toggleFullScreen", "Layar Penuh"},
    {"menu.rank.format", "Peringkat: %@"},
    {"menu.gamesNext.format", "Laga dimainkan: %@ · ke peringkat berikutnya: %@"},
    {"menu.gamesMax.format", "Laga dimainkan: %@ · peringkat tertinggi tercapai"},
    {"menu.startGame", "Mulai Permainan"},
    {"menu.tournament", "Turnamen"},
    {"menu.rules", "Peraturan"},
    {"menu.about", "Tentang"},
    {"menu.exit", "Keluar"},
    {"menu.chooseCountry", "Anda mewakili negara mana?"},
    {"menu.play", "Main"},
    {"menu.sportClass", "Kelas Klasifikasi"},
    {"menu.back", "Kembali"},
    {"menu.isRealAthlete", "Saya atlet di dunia nyata"},
    {"menu.diary", "Buku Harian Atlet"},

    {"diary.totalXP.format", "Pengalaman (XP): %@"},
    {"diary.empty", "Belum ada catatan. Ayo bertanding!"},
    {"diary.win", "Menang"},
    {"diary.loss", "Kalah"},
    {"diary.draw", "Seri"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Palsi serebral, melempar dengan tangan atau kaki. Asisten diperbolehkan — hanya untuk menstabilkan kursi roda dan menyerahkan bola."},
    {"bc.desc.bc2",
     "Palsi serebral, tingkat fungsional lebih tinggi daripada BC1. Asisten tidak diperbolehkan."},
    {"bc.desc.bc3",
     "Disabilitas paling berat (diagnosis apa pun), melempar dengan ramp (bidang luncur) dibantu asisten di lapangan."},
    {"bc.desc.bc4",
     "Disabilitas motorik berat yang bukan akibat palsi serebral (misalnya distrofi otot). Tanpa ramp dan tanpa asisten."},

    {"rank.novice", "Pemula"},
    {"rank.thirdYouth", "Junior Tingkat 3"},
    {"rank.secondYouth", "Junior Tingkat 2"},
    {"rank.firstYouth", "Junior Tingkat 1"},
    {"rank.thirdRank", "Tingkat 3"},
    {"rank.secondRank", "Tingkat 2"},
    {"rank.firstRank", "Tingkat 1"},
    {"rank.cms", "Calon Master Olahraga"},
    {"rank.ms", "Master Olahraga"},

    {"msg.initial", "Tekan [SPASI] untuk mulai membidik"},
    {"msg.aimingHint", "Panah [←][→] dan [↑][↓] untuk membidik. [SPASI] - OK."},
    {"msg.lockPower", "[SPASI] Kunci kekuatan lemparan"},
    {"msg.ballInPlay", "Bola sedang bergulir..."},
    {"msg.turn.format", "Giliran %@. [SPASI] untuk membidik"},
    {"msg.endWon.format", "%@ memenangi end ini! Poin: %@."},
    {"msg.endDraw", "End ini seri!"},
    {"msg.matchDraw", "Pertandingan seri!"},
    {"msg.teamWinMatch.format", "%@ memenangi pertandingan!"},
    {"msg.matchOver.format", "%@ Skor %@-%@. [SPASI] untuk permainan baru"},
    {"msg.nextEndPrompt.format", "%@ [SPASI] untuk end berikutnya"},
    {"msg.newEndStart.format", "End %@ dimulai. Giliran %@. [SPASI] untuk membidik"},
    {"msg.jackOut.format", "Bola jack keluar! Giliran beralih ke %@. [SPASI] untuk membidik"},
    {"msg.tieBreak.format",
     "Skor imbang! End tambahan (end %@): bola jack di tengah. Giliran %@. [SPASI] untuk membidik"},
    {"msg.aiAiming.format", "AI (%@) sedang membidik..."},
    {"msg.tournamentRound.format", "Turnamen, babak %@ dari %@! Lawan: %@ (%@). [SPASI] untuk membidik"},
    {"msg.tournamentEliminated.format",
     "Turnamen usai: tersingkir di babak %@ dari %@. [SPASI] untuk permainan baru"},
    {"msg.tournamentChampion.format",
     "JUARA TURNAMEN! Anda memenangi semua %@ babak! [SPASI] untuk permainan baru"},

    {"country.france", "Prancis"},
    {"country.germany", "Jerman"},
    {"country.thailand", "Thailand"},
    {"country.brazil", "Brasil"},
    {"country.japan", "Jepang"},
    {"country.southKorea", "Korea Selatan"},
    {"country.greatBritain", "Britania Raya"},
    {"country.portugal", "Portugal"},
    {"country.china", "Tiongkok"},
    {"country.belgium", "Belgia"},
    {"country.croatia", "Kroasia"},
    {"country.czechRepublic", "Ceko"},
    {"country.greece", "Yunani"},
    {"country.hungary", "Hungaria"},
    {"country.netherlands", "Belanda"},
    {"country.poland", "Polandia"},
    {"country.slovakia", "Slowakia"},
    {"country.spain", "Spanyol"},
    {"country.ukraine", "Ukraina"},
    {"country.hongKong", "Hong Kong"},
    {"country.indonesia", "Indonesia"},
    {"country.malaysia", "Malaysia"},
    {"country.singapore", "Singapura"},
    {"country.israel", "Israel"},
    {"country.argentina", "Argentina"},
    {"country.bermuda", "Bermuda"},
    {"country.canada", "Kanada"},
    {"country.colombia", "Kolombia"},
    {"country.ecuador", "Ekuador"},
    {"country.elSalvador", "El Salvador"},
    {"country.mexico", "Meksiko"},
    {"country.peru", "Peru"},
    {"country.egypt", "Mesir"},
    {"country.southAfrica", "Afrika Selatan"},
    {"country.tunisia", "Tunisia"},
    {"country.australia", "Australia"},
    {"country.russia", "Rusia"},

    {"rules.text",
     "Tujuannya adalah melempar bola berwarna sedekat mungkin ke bola putih (bola jack).\n"
     "\n"
     "1. Hak memulai end ditentukan: satu tim melempar bola jack putih, lalu bola berwarna pertamanya.\n"
     "2. Tim yang bolanya saat ini BUKAN yang terdekat dengan bola jack melempar berikutnya.\n"
     "3. Setiap tim memiliki 6 bola per end.\n"
     "4. Setelah semua bola dilempar, end berakhir: tim yang bolanya lebih dekat ke bola jack daripada bola terbaik lawan mendapat satu poin untuk setiap bola tersebut.\n"
     "5. Satu pertandingan terdiri dari 4 end. Jika skor imbang setelah pertandingan, dimainkan end tambahan, dan bola jack tidak dilempar, melainkan diletakkan di tengah oleh wasit.\n"
     "\n"
     "Kontrol:\n"
     "[SPASI] — mulai membidik / kunci sudut / lempar.\n"
     "[←] [→] [↑] [↓] — arah dan ketinggian lemparan."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "Dibuat oleh tim VORBEL.\n"
     "Permainan boccia 3D yang dibuat dengan Qt, OpenGL, Bullet, dan SDL.\n"
     "\n"
     "Karya lain dari tim VORBEL:\n"
     "· vorbel-sim — simulator pertandingan: lawan komputer memainkan pertandingan penuh tanpa grafis\n"
     "· kode sumber VORBEL — ditulis untuk dibaca, bagi pemain yang ingin tahu cara kerjanya"},
});

} // namespace vorbel::L10n::texts
