// The options in Indonesian.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto id = std::to_array<Text>({
    {"menu.options", "Opsi"},

    {"options.throw", "Lemparan"},
    {"options.powerPace", "Tempo kekuatan"},
    {"options.powerPace.help",
     "Kekuatan naik turun lebih lambat sebelum lemparan, atau diatur dengan tombol panah."},
    {"options.asUsual", "Seperti biasa"},
    {"options.byKeys", "Dengan tombol"},
    {"options.fineAim", "Bidik halus dan urungkan"},
    {"options.fineAim.help",
     "Dengan Shift, bidikan bergeser sedikit demi sedikit. [Backspace] mengurungkan kekuatan, lalu bidikan."},

    {"options.oneSwitch", "Satu sakelar"},
    {"options.switchOn", "Main dengan satu sakelar"},
    {"options.switchOn.help", "Pilihan bergiliran sendiri; cukup satu tombol atau klik untuk memilih."},
    {"options.switchPace", "Waktu per pilihan"},
    {"options.switchPace.help", "Berapa lama setiap pilihan menunggu."},
    {"options.switchAsks", "Tanya sebelum melempar"},
    {"options.switchAsks.help", "Anda bisa membidik lagi sebelum bola dilepas."},
    {"options.switchRest", "Jeda setelah menekan"},
    {"options.switchRest.help", "Tekanan berikutnya dalam waktu ini tidak dihitung."},
    {"options.switchKey", "Tombol tambahan"},
    {"options.switchKey.help",
     "Tombol lain yang berfungsi sebagai sakelar: pilih ini, lalu tekan tombolnya."},
    {"options.pressKey", "Tekan sebuah tombol..."},
    {"options.none", "Tidak ada"},
    {"options.seconds.format", "%@ detik"},

    {"options.devices", "Mouse dan kontroler"},
    {"options.courtButtons", "Tombol di lapangan"},
    {"options.courtButtons.help",
     "Tombol besar di tepi lapangan untuk membidik, melempar, dan mengurungkan."},
    {"options.controller", "Kontroler"},
    {"options.controller.help", "Membidik, melempar, dan memilih dengan kontroler atau antarmuka sakelar."},

    {"options.voice", "Suara dan nada"},
    {"options.speech", "Narasi"},
    {"options.speech.help", "Pesan, bidikan, dan letak bola dibacakan. Tombol [W] mengulanginya."},
    {"aim.everything", "Sebutkan posisi"},
    {"options.tones", "Nada bidikan"},
    {"options.tones.help",
     "Nada makin tinggi mengikuti kekuatan dan bergeser dari kiri ke kanan mengikuti sudut."},
    {"options.hitPlaces", "Benturan dalam stereo"},
    {"options.hitPlaces.help", "Bunyi benturan terdengar dari sisi lapangan tempat bola berbenturan."},

    {"options.sight", "Tampilan"},
    {"options.textSize", "Ukuran teks"},
    {"options.textSize.help", "Seberapa besar semua teks."},
    {"options.ballMarks", "Tanda pada bola"},
    {"options.ballMarks.help", "Bola merah bertanda cincin, bola biru bertanda silang."},
    {"options.ballOutlines", "Garis tepi bola"},
    {"options.ballOutlines.help", "Garis di sekeliling setiap bola membuatnya jelas terlihat di lapangan."},
    {"options.clearPointer", "Garis bidik putih"},
    {"options.clearPointer.help", "Garis bidik berwarna putih dengan tepi hitam."},
    {"options.solidPanels", "Panel pekat"},
    {"options.solidPanels.help", "Panel di layar tidak tembus pandang."},

    {"options.sound", "Bunyi"},
    {"options.mute", "Tanpa bunyi"},
    {"options.mute.help", "Mematikan semua bunyi. Bisa juga dengan tombol [M]."},
    {"options.crowdVolume", "Volume penonton"},
    {"options.crowdVolume.help", "Seberapa keras suara penonton."},
    {"options.effectVolume", "Volume permainan"},
    {"options.effectVolume.help", "Seberapa keras bunyi lemparan, benturan, dan hasil."},
    {"options.soundNotes", "Tampilkan bunyi"},
    {"options.soundNotes.help", "Setiap bunyi yang terdengar disebutkan di layar."},

    {"options.rest", "Istirahat dan keamanan"},
    {"options.menuPauses", "Menu menjeda pertandingan"},
    {"options.menuPauses.help", "Selama menu terbuka, pertandingan berhenti dulu."},
    {"options.askToLeave", "Tanya sebelum keluar"},
    {"options.askToLeave.help", "Jika jendela ditutup saat bertanding, Anda ditanya dulu."},

    {"leave.question", "Pertandingan belum selesai. Tetap keluar?"},
    {"leave.leave", "Keluar"},
    {"leave.cancel", "Batal"},

    {"aim.left", "Kiri"},
    {"aim.right", "Kanan"},
    {"aim.up", "Naik"},
    {"aim.down", "Turun"},
    {"aim.ok", "OK"},
    {"aim.takeBack", "Urungkan"},
    {"aim.powerByKeys", "[↑][↓] untuk mengatur kekuatan. [SPASI] untuk melempar"},

    {"switch.begin", "Tekan untuk membidik"},
    {"switch.angle", "Tekan saat arahnya pas"},
    {"switch.pitch", "Tekan saat ketinggiannya pas"},
    {"switch.power", "Tekan saat kekuatannya pas"},
    {"switch.throw", "Tekan untuk melempar"},
    {"switch.again", "Tekan untuk membidik lagi"},
    {"switch.goOn", "Tekan untuk lanjut"},
    {"switch.resting", "Tekan untuk memilih lagi"},

    {"key.space", "Spasi"},

    {"controls.title", "Tombol dan kontroler"},
    {"controls.help", "Pilih +, lalu tekan tombol papan ketik atau kontroler: paling banyak tiga per aksi. "
                      "Pilih satu untuk membuangnya."},
    {"controls.keyboard", "Papan ketik"},
    {"controls.accept", "Bidik, lempar, OK"},
    {"controls.everything", "Letak semua bola"},
    {"controls.addKey", "Tambah tombol papan ketik"},
    {"controls.addButton", "Tambah tombol kontroler"},
    {"controls.pressButton", "Tekan tombol kontroler..."},
    {"controls.moved.format", "%@ kini untuk “%@”, bukan lagi untuk “%@”."},
    {"controls.needed.format", "%@ tetap: “%@” tidak punya yang lain."},
    {"controls.reserved.format", "%@ dipakai di menu."},
    {"controls.reset", "Kembalikan tombol biasa"},
    {"button.cross", "Silang"},
    {"button.circle", "Lingkaran"},
    {"button.square", "Kotak"},
    {"button.triangle", "Segitiga"},
    {"button.number.format", "Tombol %@"},

    {"sound.throw", "Bola dilempar"},
    {"sound.hit", "Bola membentur bola"},
    {"sound.victory", "Sorak-sorai"},
});

} // namespace vorbel::L10n::options
