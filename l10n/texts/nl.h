// Dutch texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto nl = std::to_array<Text>({
    {"team.red", "Rood"},
    {"team.blue", "Blauw"},
    {"team.red.caps", "ROOD"},
    {"team.blue.caps", "BLAUW"},

    {"label.score", "Punten:"},
    {"label.ballsLeft", "Ballen:"},
    {"label.end", "End"},

    {"menu.matchResult", "Wedstrijduitslag"},
    {"menu.nextRound", "Volgende ronde"},
    {"menu.mainMenu", "Hoofdmenu"},

    {"label.end.format", "End %@ van 4"},
    {"label.playingAs.format", "Team: %@ · Klasse %@"},
    {"label.rampHint", "Goot: bal blijft op de grond, [↑][↓] uitgeschakeld"},
    {"label.aiDifficulty", "AI-niveau"},
    {"label.throwPower", "Werpkracht"},
    {"label.aiToggle", "AI"},

    {"difficulty.easy", "Makkelijk"},
    {"difficulty.medium", "Normaal"},
    {"difficulty.hard", "Moeilijk"},
    {"difficulty.ultra", "Ultra"},

    {"menu.language", "Taal"},
    {"menu.gameMenu", "Spel"},
    {"menu.toggleFullScreen", "Volledig scherm aan/uit"},
    {"menu.rank.format", "Rang: %@"},
    {"menu.gamesNext.format", "Gespeelde wedstrijden: %@ · tot volgende rang: %@"},
    {"menu.gamesMax.format", "Gespeelde wedstrijden: %@ · hoogste rang bereikt"},
    {"menu.startGame", "Spel starten"},
    {"menu.tournament", "Toernooi"},
    {"menu.rules", "Spelregels"},
    {"menu.about", "Over het spel"},
    {"menu.exit", "Afsluiten"},
    {"menu.chooseCountry", "Voor welk land speel je?"},
    {"menu.play", "Spelen"},
    {"menu.sportClass", "Sportklasse"},
    {"menu.back", "Terug"},
    {"menu.isRealAthlete", "Ik ben ook in het echt sporter"},
    {"menu.diary", "Sportdagboek"},

    {"diary.totalXP.format", "Ervaring (XP): %@"},
    {"diary.empty", "Nog leeg. Speel een wedstrijd!"},
    {"diary.win", "Winst"},
    {"diary.loss", "Verlies"},
    {"diary.draw", "Gelijkspel"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Cerebrale parese, werpt met hand of voet. Een assistent is toegestaan, alleen om de rolstoel te stabiliseren en de bal aan te geven."},
    {"bc.desc.bc2", "Cerebrale parese, hoger functioneel niveau dan BC1. Geen assistent toegestaan."},
    {"bc.desc.bc3",
     "Zwaarste beperkingen (elke diagnose), werpt via een goot (rail) met hulp van een assistent op het speelveld."},
    {"bc.desc.bc4",
     "Ernstige motorische beperkingen die niet door cerebrale parese komen (bijvoorbeeld spierdystrofie). Geen goot en geen assistent."},

    {"rank.novice", "Beginner"},
    {"rank.thirdYouth", "3e jeugdklasse"},
    {"rank.secondYouth", "2e jeugdklasse"},
    {"rank.firstYouth", "1e jeugdklasse"},
    {"rank.thirdRank", "3e klasse"},
    {"rank.secondRank", "2e klasse"},
    {"rank.firstRank", "1e klasse"},
    {"rank.cms", "Kandidaat-meester in de sport"},
    {"rank.ms", "Meester in de sport"},

    {"msg.initial", "Druk op [SPATIE] om te richten"},
    {"msg.aimingHint", "Pijlen [←][→] en [↑][↓] om te richten. [SPATIE] – bevestigen."},
    {"msg.lockPower", "[SPATIE] Werpkracht vastzetten"},
    {"msg.ballInPlay", "Bal in het spel..."},
    {"msg.turn.format", "%@ is aan de beurt. [SPATIE] om te richten"},
    {"msg.endWon.format", "%@ wint het end! Punten: %@."},
    {"msg.endDraw", "Gelijkspel in dit end!"},
    {"msg.matchDraw", "De wedstrijd eindigt gelijk!"},
    {"msg.teamWinMatch.format", "%@ wint de wedstrijd!"},
    {"msg.matchOver.format", "%@ Eindstand %@-%@. [SPATIE] voor een nieuw spel"},
    {"msg.nextEndPrompt.format", "%@ [SPATIE] voor het volgende end"},
    {"msg.newEndStart.format", "End %@ begint. %@ is aan de beurt. [SPATIE] om te richten"},
    {"msg.jackOut.format", "De jack is uit! De beurt gaat naar %@. [SPATIE] om te richten"},
    {"msg.tieBreak.format",
     "Gelijke stand! Extra end %@: de jack ligt in het midden. %@ is aan de beurt. [SPATIE] om te richten"},
    {"msg.aiAiming.format", "AI (%@) richt..."},
    {"msg.tournamentRound.format",
     "Toernooi, ronde %@ van %@! Tegenstander: %@ (%@). [SPATIE] om te richten"},
    {"msg.tournamentEliminated.format",
     "Toernooi voorbij: uitgeschakeld in ronde %@ van %@. [SPATIE] voor een nieuw spel"},
    {"msg.tournamentChampion.format",
     "TOERNOOIWINST! Je hebt alle %@ rondes gewonnen! [SPATIE] voor een nieuw spel"},

    {"country.france", "Frankrijk"},
    {"country.germany", "Duitsland"},
    {"country.thailand", "Thailand"},
    {"country.brazil", "Brazilië"},
    {"country.japan", "Japan"},
    {"country.southKorea", "Zuid-Korea"},
    {"country.greatBritain", "Groot-Brittannië"},
    {"country.portugal", "Portugal"},
    {"country.china", "China"},
    {"country.belgium", "België"},
    {"country.croatia", "Kroatië"},
    {"country.czechRepublic", "Tsjechië"},
    {"country.greece", "Griekenland"},
    {"country.hungary", "Hongarije"},
    {"country.netherlands", "Nederland"},
    {"country.poland", "Polen"},
    {"country.slovakia", "Slowakije"},
    {"country.spain", "Spanje"},
    {"country.ukraine", "Oekraïne"},
    {"country.hongKong", "Hongkong"},
    {"country.indonesia", "Indonesië"},
    {"country.malaysia", "Maleisië"},
    {"country.singapore", "Singapore"},
    {"country.israel", "Israël"},
    {"country.argentina", "Argentinië"},
    {"country.bermuda", "Bermuda"},
    {"country.canada", "Canada"},
    {"country.colombia", "Colombia"},
    {"country.ecuador", "Ecuador"},
    {"country.elSalvador", "El Salvador"},
    {"country.mexico", "Mexico"},
    {"country.peru", "Peru"},
    {"country.egypt", "Egypte"},
    {"country.southAfrica", "Zuid-Afrika"},
    {"country.tunisia", "Tunesië"},
    {"country.australia", "Australië"},
    {"country.russia", "Rusland"},

    {"rules.text",
     "Het doel is de gekleurde ballen zo dicht mogelijk bij de witte bal (de jack) te werpen.\n"
     "\n"
     "1. Eerst wordt bepaald wie het end (de speelronde) begint: dat team werpt de witte jack en daarna zijn eerste gekleurde bal.\n"
     "2. Daarna werpt het team waarvan de bal op dat moment NIET het dichtst bij de jack ligt.\n"
     "3. Elk team heeft 6 ballen per end.\n"
     "4. Als alle ballen geworpen zijn, is het end afgelopen: het team met ballen die dichter bij de jack liggen dan de beste bal van de tegenstander krijgt voor elk van die ballen één punt.\n"
     "5. Een wedstrijd heeft 4 ends. Is de stand daarna gelijk, dan volgt een extra end en wordt de jack niet geworpen, maar door de scheidsrechter in het midden gelegd.\n"
     "\n"
     "Besturing:\n"
     "[SPATIE] – beginnen met richten / hoek vastzetten / werpen.\n"
     "[←] [→] [↑] [↓] – richting en hoogte van de worp."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "Gemaakt door het VORBEL-team.\n"
     "Een 3D-bocciaspel, gemaakt met Qt, OpenGL, Bullet en SDL.\n"
     "\n"
     "Ook van de makers van VORBEL:\n"
     "· vorbel-sim – de wedstrijdsimulator: computertegenstanders spelen hele wedstrijden, zonder grafische weergave\n"
     "· de broncode van VORBEL – geschreven om gelezen te worden, voor spelers die graag zien hoe het werkt"},
});

} // namespace vorbel::L10n::texts
