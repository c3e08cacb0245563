// Polish texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto pl = std::to_array<Text>({
    {"team.red", "Czerwoni"},
    {"team.blue", "Niebiescy"},
    {"team.red.caps", "CZERWONI"},
    {"team.blue.caps", "NIEBIESCY"},

    {"label.score", "Punkty:"},
    {"label.ballsLeft", "Bile:"},
    {"label.end", "End"},

    {"menu.matchResult", "Wynik meczu"},
    {"menu.nextRound", "Następna runda"},
    {"menu.mainMenu", "Menu główne"},

    {"label.end.format", "End %@ z 4"},
    {"label.playingAs.format", "Reprezentacja: %@ · Klasa %@"},
    {"label.rampHint", "Rampa: bila toczy się po boisku, [↑][↓] wyłączone"},
    {"label.aiDifficulty", "Poziom SI"},
    {"label.throwPower", "Siła rzutu"},
    {"label.aiToggle", "SI"},

    {"difficulty.easy", "Łatwy"},
    {"difficulty.medium", "Średni"},
    {"difficulty.hard", "Trudny"},
    {"difficulty.ultra", "Ultra"},

    {"menu.language", "Język"},
    {"menu.gameMenu", "Gra"},
    {"menu.toggleFullScreen", "Pełny ekran wł./wył."},
    {"menu.rank.format", "Ranga: %@"},
    {"menu.gamesNext.format", "Rozegrane mecze: %@ · do następnej rangi: %@"},
    {"menu.gamesMax.format", "Rozegrane mecze: %@ · najwyższa ranga"},
    {"menu.startGame", "Rozpocznij grę"},
    {"menu.tournament", "Turniej"},
    {"menu.rules", "Zasady"},
    {"menu.about", "O grze"},
    {"menu.exit", "Zakończ"},
    {"menu.chooseCountry", "Który kraj reprezentujesz?"},
    {"menu.play", "Graj"},
    {"menu.sportClass", "Klasa startowa"},
    {"menu.back", "Wstecz"},
    {"menu.isRealAthlete", "Jestem sportowcem w prawdziwym życiu"},
    {"menu.diary", "Dziennik sportowca"},

    {"diary.totalXP.format", "Doświadczenie (XP): %@"},
    {"diary.empty", "Brak wpisów. Rozegraj mecz!"},
    {"diary.win", "Wygrana"},
    {"diary.loss", "Przegrana"},
    {"diary.draw", "Remis"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Porażenie mózgowe, rzut ręką lub stopą. Asystent jest dozwolony – tylko do stabilizowania wózka i podawania bili."},
    {"bc.desc.bc2", "Porażenie mózgowe, sprawność wyższa niż w BC1. Asystent niedozwolony."},
    {"bc.desc.bc3",
     "Najcięższe niepełnosprawności (dowolna diagnoza), rzut z rampy (rynny) przy wsparciu asystenta na boisku."},
    {"bc.desc.bc4",
     "Ciężkie niepełnosprawności ruchowe o przyczynie innej niż porażenie mózgowe (np. dystrofia mięśniowa). Bez rampy i bez asystenta."},

    {"rank.novice", "Początkujący"},
    {"rank.thirdYouth", "III klasa juniorska"},
    {"rank.secondYouth", "II klasa juniorska"},
    {"rank.firstYouth", "I klasa juniorska"},
    {"rank.thirdRank", "III klasa sportowa"},
    {"rank.secondRank", "II klasa sportowa"},
    {"rank.firstRank", "I klasa sportowa"},
    {"rank.cms", "Kandydat na mistrza sportu"},
    {"rank.ms", "Mistrz sportu"},

    {"msg.initial", "Naciśnij klawisz [SPACJA], aby zacząć celować"},
    {"msg.aimingHint", "Celuj strzałkami [←][→] i [↑][↓]. [SPACJA] – OK."},
    {"msg.lockPower", "[SPACJA] Ustal siłę rzutu"},
    {"msg.ballInPlay", "Bila w grze…"},
    {"msg.turn.format", "Rzucają %@. [SPACJA] – celowanie"},
    {"msg.endWon.format", "%@ wygrywają end! Punkty: %@."},
    {"msg.endDraw", "Remis w endzie!"},
    {"msg.matchDraw", "Remis w meczu!"},
    {"msg.teamWinMatch.format", "%@ wygrywają mecz!"},
    {"msg.matchOver.format", "%@ Wynik %@:%@. [SPACJA] – nowa gra"},
    {"msg.nextEndPrompt.format", "%@ [SPACJA] – następny end"},
    {"msg.newEndStart.format", "Zaczyna się end %@. Rzucają %@. [SPACJA] – celowanie"},
    {"msg.jackOut.format", "Jack poza polem gry! Teraz rzucają %@. [SPACJA] – celowanie"},
    {"msg.tieBreak.format",
     "Remis w meczu! Dodatkowy end %@: jack leży na środku. Rzucają %@. [SPACJA] – celowanie"},
    {"msg.aiAiming.format", "SI (%@) celuje…"},
    {"msg.tournamentRound.format", "Turniej, runda %@ z %@! Rywal: %@ (%@). [SPACJA] – celowanie"},
    {"msg.tournamentEliminated.format", "Koniec turnieju: odpadasz w rundzie %@ z %@. [SPACJA] – nowa gra"},
    {"msg.tournamentChampion.format",
     "ZWYCIĘSTWO W TURNIEJU! Wygrywasz wszystkie rundy (%@)! [SPACJA] – nowa gra"},

    {"country.france", "Francja"},
    {"country.germany", "Niemcy"},
    {"country.thailand", "Tajlandia"},
    {"country.brazil", "Brazylia"},
    {"country.japan", "Japonia"},
    {"country.southKorea", "Korea Południowa"},
    {"country.greatBritain", "Wielka Brytania"},
    {"country.portugal", "Portugalia"},
    {"country.china", "Chiny"},
    {"country.belgium", "Belgia"},
    {"country.croatia", "Chorwacja"},
    {"country.czechRepublic", "Czechy"},
    {"country.greece", "Grecja"},
    {"country.hungary", "Węgry"},
    {"country.netherlands", "Holandia"},
    {"country.poland", "Polska"},
    {"country.slovakia", "Słowacja"},
    {"country.spain", "Hiszpania"},
    {"country.ukraine", "Ukraina"},
    {"country.hongKong", "Hongkong"},
    {"country.indonesia", "Indonezja"},
    {"country.malaysia", "Malezja"},
    {"country.singapore", "Singapur"},
    {"country.israel", "Izrael"},
    {"country.argentina", "Argentyna"},
    {"country.bermuda", "Bermudy"},
    {"country.canada", "Kanada"},
    {"country.colombia", "Kolumbia"},
    {"country.ecuador", "Ekwador"},
    {"country.elSalvador", "Salwador"},
    {"country.mexico", "Meksyk"},
    {"country.peru", "Peru"},
    {"country.egypt", "Egipt"},
    {"country.southAfrica", "RPA"},
    {"country.tunisia", "Tunezja"},
    {"country.australia", "Australia"},
    {"country.russia", "Rosja"},

    {"rules.text",
     "Celem gry jest rzucanie kolorowych bil jak najbliżej białej bili (jacka).\n"
     "\n"
     "1. Najpierw ustala się, kto zaczyna end: ta drużyna rzuca białą bilę (jacka), a potem swoją pierwszą kolorową.\n"
     "2. Następna rzuca drużyna, której bila w danej chwili NIE leży najbliżej jacka.\n"
     "3. Każda drużyna ma 6 bil w endzie.\n"
     "4. Gdy wszystkie bile zostaną rzucone, end się kończy: drużyna, której bile leżą bliżej jacka niż najlepsza bila rywala, dostaje po jednym punkcie za każdą taką bilę.\n"
     "5. Mecz składa się z 4 endów. Jeśli po nich jest remis, rozgrywa się dodatkowy end, a jacka nie rzuca się: sędzia kładzie go na środku.\n"
     "\n"
     "Sterowanie:\n"
     "[SPACJA] – zacznij celować / ustal kąt / rzuć.\n"
     "[←] [→] [↑] [↓] – kierunek i wysokość rzutu."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "Stworzone przez zespół VORBEL.\n"
     "Trójwymiarowa gra w boccię, zbudowana z użyciem Qt, OpenGL, Bullet i SDL.\n"
     "\n"
     "Także od twórców VORBEL:\n"
     "· vorbel-sim – symulator meczów: komputerowi rywale rozgrywają całe mecze bez grafiki\n"
     "· kod źródłowy VORBEL – pisany po to, by go czytać, dla graczy, którzy lubią wiedzieć, jak to działa"},
});

} // namespace vorbel::L10n::texts
