// French texts. Before : ! ? stands a no-break space (U+00A0), as French typography asks.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto fr = std::to_array<Text>({
    {"team.red", "Rouge"},
    {"team.blue", "Bleu"},
    {"team.red.caps", "ROUGE"},
    {"team.blue.caps", "BLEU"},

    {"label.score", "Score :"},
    {"label.ballsLeft", "Balles :"},
    {"label.end", "Manche"},

    {"menu.matchResult", "Résultat du match"},
    {"menu.nextRound", "Tour suivant"},
    {"menu.mainMenu", "Menu principal"},

    {"label.end.format", "Manche %@ sur 4"},
    {"label.playingAs.format", "Équipe : %@ · Classe %@"},
    {"label.rampHint", "Rampe : la balle reste au sol, [↑][↓] désactivées"},
    {"label.aiDifficulty", "Difficulté de l’IA"},
    {"label.throwPower", "Force du lancer"},
    {"label.aiToggle", "IA"},

    {"difficulty.easy", "Facile"},
    {"difficulty.medium", "Moyen"},
    {"difficulty.hard", "Difficile"},
    {"difficulty.ultra", "Ultra"},

    {"menu.language", "Langue"},
    {"menu.gameMenu", "Jeu"},
    {"menu.toggleFullScreen", "Plein écran"},
    {"menu.rank.format", "Rang : %@"},
    {"menu.gamesNext.format", "Matchs joués : %@ · avant le rang suivant : %@"},
    {"menu.gamesMax.format", "Matchs joués : %@ · rang maximal atteint"},
    {"menu.startGame", "Commencer la partie"},
    {"menu.tournament", "Tournoi"},
    {"menu.rules", "Règles"},
    {"menu.about", "À propos"},
    {"menu.exit", "Quitter"},
    {"menu.chooseCountry", "Pour quel pays jouez-vous ?"},
    {"menu.play", "Jouer"},
    {"menu.sportClass", "Classe sportive"},
    {"menu.back", "Retour"},
    {"menu.isRealAthlete", "Athlète dans la vraie vie"},
    {"menu.diary", "Carnet d’athlète"},

    {"diary.totalXP.format", "Expérience (XP) : %@"},
    {"diary.empty", "Aucune entrée pour l’instant. Jouez un match !"},
    {"diary.win", "Victoire"},
    {"diary.loss", "Défaite"},
    {"diary.draw", "Match nul"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Paralysie cérébrale, lancer à la main ou au pied. Un assistant est autorisé, uniquement pour stabiliser le fauteuil et remettre la balle."},
    {"bc.desc.bc2",
     "Paralysie cérébrale, niveau fonctionnel supérieur à celui de la classe BC1. Aucun assistant autorisé."},
    {"bc.desc.bc3",
     "Atteintes les plus sévères (quel que soit le diagnostic), lancer à l’aide d’une rampe (gouttière) avec le soutien d’un assistant sur le terrain."},
    {"bc.desc.bc4",
     "Atteintes motrices sévères non dues à une paralysie cérébrale (dystrophie musculaire, par exemple). Ni rampe ni assistant."},

    {"rank.novice", "Novice"},
    {"rank.thirdYouth", "3e catégorie jeunes"},
    {"rank.secondYouth", "2e catégorie jeunes"},
    {"rank.firstYouth", "1re catégorie jeunes"},
    {"rank.thirdRank", "3e catégorie"},
    {"rank.secondRank", "2e catégorie"},
    {"rank.firstRank", "1re catégorie"},
    {"rank.cms", "Candidat maître des sports"},
    {"rank.ms", "Maître des sports"},

    {"msg.initial", "Appuyez sur [ESPACE] pour viser"},
    {"msg.aimingHint", "Flèches [←][→] et [↑][↓] pour viser. [ESPACE] pour valider."},
    {"msg.lockPower", "[ESPACE] Fixer la force du lancer"},
    {"msg.ballInPlay", "Balle en jeu…"},
    {"msg.turn.format", "Au tour du camp %@. [ESPACE] pour viser"},
    {"msg.endWon.format", "Le camp %@ remporte la manche ! Points : %@."},
    {"msg.endDraw", "Égalité dans cette manche !"},
    {"msg.matchDraw", "Match nul !"},
    {"msg.teamWinMatch.format", "Le camp %@ remporte le match !"},
    {"msg.matchOver.format", "%@ Score %@-%@. [ESPACE] pour une nouvelle partie"},
    {"msg.nextEndPrompt.format", "%@ [ESPACE] pour la manche suivante"},
    {"msg.newEndStart.format", "Début de la manche %@. Au tour du camp %@. [ESPACE] pour viser"},
    {"msg.jackOut.format", "Le jack est sorti ! Au tour du camp %@. [ESPACE] pour viser"},
    {"msg.tieBreak.format",
     "Égalité ! Manche supplémentaire %@ : jack placé au centre. Au tour du camp %@. [ESPACE] pour viser"},
    {"msg.aiAiming.format", "L’IA (%@) vise…"},
    {"msg.tournamentRound.format", "Tournoi, tour %@ sur %@ ! Adversaire : %@ (%@). [ESPACE] pour viser"},
    {"msg.tournamentEliminated.format",
     "Tournoi terminé : élimination au tour %@ sur %@. [ESPACE] pour une nouvelle partie"},
    {"msg.tournamentChampion.format",
     "VICTOIRE AU TOURNOI ! Vous avez gagné les %@ tours ! [ESPACE] pour une nouvelle partie"},

    {"country.france", "France"},
    {"country.germany", "Allemagne"},
    {"country.thailand", "Thaïlande"},
    {"country.brazil", "Brésil"},
    {"country.japan", "Japon"},
    {"country.southKorea", "Corée du Sud"},
    {"country.greatBritain", "Grande-Bretagne"},
    {"country.portugal", "Portugal"},
    {"country.china", "Chine"},
    {"country.belgium", "Belgique"},
    {"country.croatia", "Croatie"},
    {"country.czechRepublic", "Tchéquie"},
    {"country.greece", "Grèce"},
    {"country.hungary", "Hongrie"},
    {"country.netherlands", "Pays-Bas"},
    {"country.poland", "Pologne"},
    {"country.slovakia", "Slovaquie"},
    {"country.spain", "Espagne"},
    {"country.ukraine", "Ukraine"},
    {"country.hongKong", "Hong Kong"},
    {"country.indonesia", "Indonésie"},
    {"country.malaysia", "Malaisie"},
    {"country.singapore", "Singapour"},
    {"country.israel", "Israël"},
    {"country.argentina", "Argentine"},
    {"country.bermuda", "Bermudes"},
    {"country.canada", "Canada"},
    {"country.colombia", "Colombie"},
    {"country.ecuador", "Équateur"},
    {"country.elSalvador", "Salvador"},
    {"country.mexico", "Mexique"},
    {"country.peru", "Pérou"},
    {"country.egypt", "Égypte"},
    {"country.southAfrica", "Afrique du Sud"},
    {"country.tunisia", "Tunisie"},
    {"country.australia", "Australie"},
    {"country.russia", "Russie"},

    {"rules.text",
     "Le but est de lancer les balles de couleur le plus près possible de la balle blanche (le jack).\n"
     "\n"
     "1. On décide d’abord qui commence la manche : cette équipe lance le jack blanc, puis sa première balle de couleur.\n"
     "2. L’équipe dont la balle n’est actuellement PAS la plus proche du jack lance ensuite.\n"
     "3. Chaque équipe dispose de 6 balles par manche.\n"
     "4. Une fois toutes les balles lancées, la manche est terminée : l’équipe dont des balles sont plus proches du jack que la meilleure balle adverse marque un point pour chacune d’elles.\n"
     "5. Un match compte 4 manches. En cas d’égalité, une manche supplémentaire est jouée : le jack n’est pas lancé, l’arbitre le place au centre.\n"
     "\n"
     "Commandes :\n"
     "[ESPACE] — commencer à viser / fixer l’angle / lancer.\n"
     "[←] [→] [↑] [↓] — direction et hauteur du lancer."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "Réalisé par l’équipe VORBEL.\n"
     "Un jeu de boccia en 3D créé avec Qt, OpenGL, Bullet et SDL.\n"
     "\n"
     "Également par l’équipe VORBEL :\n"
     "· vorbel-sim — le simulateur de matchs : l’ordinateur joue des matchs entiers contre lui-même, sans graphismes\n"
     "· le code source de VORBEL — écrit pour être lu, à l’intention des curieux qui veulent voir comment tout fonctionne"},
});

} // namespace vorbel::L10n::texts
