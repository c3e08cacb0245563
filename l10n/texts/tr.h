// Turkish texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto tr = std::to_array<Text>({
    {"team.red", "Kırmızı"},
    {"team.blue", "Mavi"},
    {"team.red.caps", "KIRMIZI"},
    {"team.blue.caps", "MAVİ"},

    {"label.score", "Puan:"},
    {"label.ballsLeft", "Top:"},
    {"label.end", "Set"},

    {"menu.matchResult", "Maç Sonucu"},
    {"menu.nextRound", "Sonraki Tur"},
    {"menu.mainMenu", "Ana Menü"},

    {"label.end.format", "Set %@ / 4"},
    {"label.playingAs.format", "Ülke: %@ · Sınıf %@"},
    {"label.rampHint", "Rampa: top yerde yuvarlanır, [↑][↓] devre dışı"},
    {"label.aiDifficulty", "YZ zorluğu"},
    {"label.throwPower", "Atış gücü"},
    {"label.aiToggle", "YZ"},

    {"difficulty.easy", "Kolay"},
    {"difficulty.medium", "Orta"},
    {"difficulty.hard", "Zor"},
    {"difficulty.ultra", "Ultra"},

    {"menu.language", "Dil"},
    {"menu.gameMenu", "Oyun"},
    {"menu.toggleFullScreen", "Tam Ekranı Aç/Kapat"},
    {"menu.rank.format", "Kademe: %@"},
    {"menu.gamesNext.format", "Oynanan maç: %@ · sonraki kademeye kalan: %@"},
    {"menu.gamesMax.format", "Oynanan maç: %@ · en yüksek kademe"},
    {"menu.startGame", "Oyunu Başlat"},
    {"menu.tournament", "Turnuva"},
    {"menu.rules", "Kurallar"},
    {"menu.about", "Hakkında"},
    {"menu.exit", "Çıkış"},
    {"menu.chooseCountry", "Hangi ülkeyi temsil ediyorsun?"},
    {"menu.play", "Oyna"},
    {"menu.sportClass", "Spor Sınıfı"},
    {"menu.back", "Geri"},
    {"menu.isRealAthlete", "Gerçek hayatta sporcuyum"},
    {"menu.diary", "Sporcu Günlüğü"},

    {"diary.totalXP.format", "Deneyim (XP): %@"},
    {"diary.empty", "Henüz kayıt yok. Bir maç oyna!"},
    {"diary.win", "Galibiyet"},
    {"diary.loss", "Mağlubiyet"},
    {"diary.draw", "Beraberlik"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Serebral palsi, elle veya ayakla atış. Asistana izin verilir; yalnızca sandalyeyi sabitlemek ve topu uzatmak için."},
    {"bc.desc.bc2", "Serebral palsi, BC1’e göre daha yüksek işlev düzeyi. Asistana izin verilmez."},
    {"bc.desc.bc3",
     "En ağır yetersizlikler (her türlü tanı), sahada asistan desteğiyle rampa (oluk) kullanarak atış."},
    {"bc.desc.bc4",
     "Serebral palsi kaynaklı olmayan ağır hareket yetersizlikleri (örn. kas distrofisi). Rampasız ve asistansız."},

    {"rank.novice", "Acemi"},
    {"rank.thirdYouth", "Gençler 3. Kademe"},
    {"rank.secondYouth", "Gençler 2. Kademe"},
    {"rank.firstYouth", "Gençler 1. Kademe"},
    {"rank.thirdRank", "3. Kademe"},
    {"rank.secondRank", "2. Kademe"},
    {"rank.firstRank", "1. Kademe"},
    {"rank.cms", "Spor Ustası Adayı"},
    {"rank.ms", "Spor Ustası"},

    {"msg.initial", "Nişan almak için [BOŞLUK] tuşuna bas"},
    {"msg.aimingHint", "[←][→] ve [↑][↓] oklarıyla nişan al. [BOŞLUK] – tamam."},
    {"msg.lockPower", "[BOŞLUK] Atış gücünü sabitle"},
    {"msg.ballInPlay", "Top oyunda…"},
    {"msg.turn.format", "Sıra %@ takımda. Nişan için [BOŞLUK]"},
    {"msg.endWon.format", "Seti %@ takım kazandı! Puan: %@."},
    {"msg.endDraw", "Set berabere!"},
    {"msg.matchDraw", "Maç berabere!"},
    {"msg.teamWinMatch.format", "Maçı %@ takım kazandı!"},
    {"msg.matchOver.format", "%@ Skor %@-%@. Yeni oyun için [BOŞLUK]"},
    {"msg.nextEndPrompt.format", "%@ Sonraki set için [BOŞLUK]"},
    {"msg.newEndStart.format", "%@. set başladı. Sıra %@ takımda. Nişan için [BOŞLUK]"},
    {"msg.jackOut.format", "Hedef top dışarı çıktı! Sıra %@ takıma geçti. Nişan için [BOŞLUK]"},
    {"msg.tieBreak.format",
     "Maç berabere! Ek set %@: hedef top merkeze kondu. Sıra %@ takımda. Nişan için [BOŞLUK]"},
    {"msg.aiAiming.format", "YZ (%@ takım) nişan alıyor…"},
    {"msg.tournamentRound.format", "Turnuva turu %@/%@! Rakip: %@ (%@). Nişan için [BOŞLUK]"},
    {"msg.tournamentEliminated.format", "Turnuva bitti: elendiğin tur %@/%@. Yeni oyun için [BOŞLUK]"},
    {"msg.tournamentChampion.format",
     "TURNUVA ŞAMPİYONU! %@ turun hepsini kazandın! Yeni oyun için [BOŞLUK]"},

    {"country.france", "Fransa"},
    {"country.germany", "Almanya"},
    {"country.thailand", "Tayland"},
    {"country.brazil", "Brezilya"},
    {"country.japan", "Japonya"},
    {"country.southKorea", "Güney Kore"},
    {"country.greatBritain", "Büyük Britanya"},
    {"country.portugal", "Portekiz"},
    {"country.china", "Çin"},
    {"country.belgium", "Belçika"},
    {"country.croatia", "Hırvatistan"},
    {"country.czechRepublic", "Çekya"},
    {"country.greece", "Yunanistan"},
    {"country.hungary", "Macaristan"},
    {"country.netherlands", "Hollanda"},
    {"country.poland", "Polonya"},
    {"country.slovakia", "Slovakya"},
    {"country.spain", "İspanya"},
    {"country.ukraine", "Ukrayna"},
    {"country.hongKong", "Hong Kong"},
    {"country.indonesia", "Endonezya"},
    {"country.malaysia", "Malezya"},
    {"country.singapore", "Singapur"},
    {"country.israel", "İsrail"},
    {"country.argentina", "Arjantin"},
    {"country.bermuda", "Bermuda"},
    {"country.canada", "Kanada"},
    {"country.colombia", "Kolombiya"},
    {"country.ecuador", "Ekvador"},
    {"country.elSalvador", "El Salvador"},
    {"country.mexico", "Meksika"},
    {"country.peru", "Peru"},
    {"country.egypt", "Mısır"},
    {"country.southAfrica", "Güney Afrika"},
    {"country.tunisia", "Tunus"},
    {"country.australia", "Avustralya"},
    {"country.russia", "Rusya"},

    {"rules.text",
     "Amaç, renkli topları beyaz hedef topa (jack) olabildiğince yakın atmaktır.\n"
     "\n"
     "1. Önce seti kimin başlatacağı belirlenir: o takım beyaz hedef topu, ardından ilk renkli topunu atar.\n"
     "2. Sonraki atışı, topu o anda hedef topa en yakın OLMAYAN takım yapar.\n"
     "3. Her takımın set başına 6 topu vardır.\n"
     "4. Tüm toplar atılınca set biter: topları hedef topa rakibin en iyi topundan daha yakın olan takım, bu topların her biri için bir puan alır.\n"
     "5. Bir maç 4 settir. Maç sonunda skor eşitse ek bir set oynanır; hedef top atılmaz, hakem onu merkeze koyar.\n"
     "\n"
     "Kontroller:\n"
     "[BOŞLUK] — nişan almaya başla / açıyı sabitle / at.\n"
     "[←] [→] [↑] [↓] — atışın yönü ve yüksekliği."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "VORBEL ekibi tarafından yapıldı.\n"
     "Qt, OpenGL, Bullet ve SDL ile yapılmış bir 3D boccia oyunu.\n"
     "\n"
     "VORBEL ekibinden ayrıca:\n"
     "· vorbel-sim — maç simülatörü: bilgisayar kontrollü rakipler maçları grafik olmadan baştan sona oynar\n"
     "· VORBEL kaynak kodu — okunmak için yazıldı, nasıl çalıştığını görmeyi seven oyuncular için"},
});

} // namespace vorbel::L10n::texts
