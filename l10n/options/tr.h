// The options in Turkish.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto tr = std::to_array<Text>({
    {"menu.options", "Seçenekler"},

    {"options.throw", "Atış"},
    {"options.powerPace", "Güç göstergesinin hızı"},
    {"options.powerPace.help", "Atış gücü daha yavaş inip çıkar ya da ok tuşlarıyla ayarlanmayı bekler."},
    {"options.asUsual", "Normal"},
    {"options.byKeys", "Tuşlarla"},
    {"options.fineAim", "İnce nişan ve geri alma"},
    {"options.fineAim.help",
     "Shift ile ok tuşları küçük adımlarla nişan alır. Backspace önce gücü, sonra nişanı geri alır."},

    {"options.oneSwitch", "Tek düğme"},
    {"options.switchOn", "Tek düğmeyle oyna"},
    {"options.switchOn.help",
     "Seçenekler kendiliğinden sırayla gelir; tek bir tuş, tıklama ya da düğmeyle seçersin."},
    {"options.switchPace", "Seçenek başına süre"},
    {"options.switchPace.help", "Her seçenek, seçilmek için bu kadar bekler."},
    {"options.switchAsks", "Atıştan önce sor"},
    {"options.switchAsks.help", "Top bırakılmadan önce yeniden nişan alabilirsin."},
    {"options.switchRest", "Bastıktan sonra ara"},
    {"options.switchRest.help", "Bu süre dolmadan yeniden basarsan sayılmaz."},
    {"options.switchKey", "Ek tuş"},
    {"options.switchKey.help", "Düğme yerine geçecek bir tuş daha: bunu seç, sonra o tuşa bas."},
    {"options.pressKey", "Bir tuşa bas…"},
    {"options.none", "Yok"},
    {"options.seconds.format", "%@ sn"},

    {"options.devices", "Fare ve oyun kolu"},
    {"options.courtButtons", "Sahada düğmeler"},
    {"options.courtButtons.help", "Saha kenarındaki büyük düğmelerle nişan al, at, geri al."},
    {"options.controller", "Oyun kolu"},
    {"options.controller.help", "Oyun kolları ve uyarlanmış düğmelerle nişan al, at, seç."},

    {"options.voice", "Anlatım ve tonlar"},
    {"options.speech", "Sesli anlatım"},
    {"options.speech.help", "Mesajlar, nişan ve topların yeri sesli okunur. W tuşu yeniden okur."},
    {"aim.everything", "Konumları söyle"},
    {"options.tones", "Nişan tonu"},
    {"options.tones.help", "Güç arttıkça ton tizleşir, açı değiştikçe soldan sağa kayar."},
    {"options.hitPlaces", "Stereo çarpma sesi"},
    {"options.hitPlaces.help", "Çarpma sesi, sahada topların çarpıştığı taraftan duyulur."},

    {"options.sight", "Görünüm"},
    {"options.ballMarks", "Toplarda işaret"},
    {"options.ballMarks.help", "Kırmızı toplarda halka, mavi toplarda çarpı olur."},
    {"options.ballOutlines", "Topların çevresinde çizgi"},
    {"options.ballOutlines.help", "Her topun çevresindeki çizgi, onu zeminden ayırır."},
    {"options.clearPointer", "Beyaz nişan çizgisi"},
    {"options.clearPointer.help", "Nişan çizgisi beyaz, kenarları siyah olur."},
    {"options.solidPanels", "Saydam olmayan paneller"},
    {"options.solidPanels.help", "Ekrandaki panellerin arkası görünmez."},

    {"options.sound", "Ses"},
    {"options.mute", "Sessiz"},
    {"options.mute.help", "Bütün sesleri kapatır. M tuşu da aynı işi görür."},
    {"options.crowdVolume", "Seyirci sesi"},
    {"options.crowdVolume.help", "Seyircilerin sesi ne kadar açık olsun."},
    {"options.effectVolume", "Oyun sesi"},
    {"options.effectVolume.help", "Atış, çarpma ve sonuç sesleri ne kadar açık olsun."},
    {"options.soundNotes", "Sesleri yazıyla göster"},
    {"options.soundNotes.help", "Duyulan her sesin adı ekrana yazılır."},

    {"options.rest", "Dinlenme ve güvenlik"},
    {"options.menuPauses", "Menü maçı durdursun"},
    {"options.menuPauses.help", "Menü açıkken maç bekler."},
    {"options.askToLeave", "Çıkmadan önce sor"},
    {"options.askToLeave.help", "Maç sırasında pencere kapatılırsa önce onay istenir."},

    {"leave.question", "Maç daha bitmedi. Yine de çıkılsın mı?"},
    {"leave.leave", "Çık"},
    {"leave.cancel", "Vazgeç"},

    {"aim.left", "Sola"},
    {"aim.right", "Sağa"},
    {"aim.up", "Yukarı"},
    {"aim.down", "Aşağı"},
    {"aim.ok", "Tamam"},
    {"aim.takeBack", "Geri al"},
    {"aim.powerByKeys", "[↑][↓] ile gücü ayarla. Atmak için [BOŞLUK]"},

    {"switch.begin", "Nişan almak için bas"},
    {"switch.angle", "Yön uygun olunca bas"},
    {"switch.pitch", "Yükseklik uygun olunca bas"},
    {"switch.power", "Güç uygun olunca bas"},
    {"switch.throw", "Atmak için bas"},
    {"switch.again", "Yeniden nişan almak için bas"},
    {"switch.goOn", "Devam etmek için bas"},
    {"switch.resting", "Seçime dönmek için bas"},

    {"key.space", "Boşluk"},

    {"controls.title", "Tuşlar ve düğmeler"},
    {"controls.help",
     "+ işaretini seç, sonra bir tuşa ya da düğmeye bas: her işe en çok üç tane. Kaldırmak istediğini seç."},
    {"controls.keyboard", "Klavye"},
    {"controls.accept", "Nişan, atış, tamam"},
    {"controls.everything", "Her şeyin yeri"},
    {"controls.addKey", "Tuş ekle"},
    {"controls.addButton", "Düğme ekle"},
    {"controls.pressButton", "Bir düğmeye bas…"},
    {"controls.moved.format", "%@ artık “%@” için, “%@” için değil."},
    {"controls.needed.format", "%@ kalıyor: “%@” için başkası yok."},
    {"controls.reserved.format", "%@ menülerde kullanılıyor."},
    {"controls.reset", "Olağan tuşlara dön"},
    {"button.cross", "Çarpı"},
    {"button.circle", "Yuvarlak"},
    {"button.square", "Kare"},
    {"button.triangle", "Üçgen"},
    {"button.number.format", "Düğme %@"},

    {"sound.throw", "Atış"},
    {"sound.hit", "Top topa çarptı"},
    {"sound.victory", "Tezahürat"},
});

} // namespace vorbel::L10n::options
