// The options in French. Before : ; ! ? stands a no-break space (U+00A0).
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto fr = std::to_array<Text>({
    {"menu.options", "Options"},

    {"options.throw", "Lancer"},
    {"options.powerPace", "Rythme de la force"},
    {"options.powerPace.help", "La force oscille plus lentement avant le lancer, ou se règle avec les "
                               "flèches."},
    {"options.asUsual", "Normal"},
    {"options.byKeys", "Avec les flèches"},
    {"options.fineAim", "Visée fine et annulation"},
    {"options.fineAim.help", "Avec Maj, les flèches visent par petits pas. [Retour arrière] annule la force, "
                             "puis la visée."},

    {"options.oneSwitch", "Un seul contacteur"},
    {"options.switchOn", "Jouer avec un contacteur"},
    {"options.switchOn.help", "Les choix défilent tout seuls ; une touche, un clic ou un bouton valide "
                              "celui qui est proposé."},
    {"options.switchPace", "Durée de chaque choix"},
    {"options.switchPace.help", "Le temps pendant lequel chaque choix vous attend."},
    {"options.switchAsks", "Demander avant le lancer"},
    {"options.switchAsks.help", "Avant de lâcher la balle, vous pouvez viser à nouveau."},
    {"options.switchRest", "Pause après un appui"},
    {"options.switchRest.help", "Un nouvel appui avant la fin de cette pause ne compte pas."},
    {"options.switchKey", "Une touche de plus"},
    {"options.switchKey.help", "Une autre touche qui sert de contacteur : choisissez ceci, puis appuyez sur "
                               "la touche."},
    {"options.pressKey", "Appuyez sur une touche…"},
    {"options.none", "Aucune"},
    {"options.seconds.format", "%@ s"},

    {"options.devices", "Souris et manette"},
    {"options.courtButtons", "Boutons sur le terrain"},
    {"options.courtButtons.help", "De grands boutons au bord du terrain pour viser, lancer et annuler."},
    {"options.controller", "Manette"},
    {"options.controller.help", "Pour viser, lancer et choisir avec une manette ou un boîtier de "
                                "contacteurs."},

    {"options.voice", "Voix et repères sonores"},
    {"options.speech", "Voix"},
    {"options.speech.help", "Les messages, la visée et la position des balles sont dits à voix haute. La "
                            "touche [W] les répète."},
    {"aim.everything", "Dire les positions"},
    {"options.tones", "Repères sonores de visée"},
    {"options.tones.help", "Un son monte avec la force et passe de gauche à droite avec l’angle."},
    {"options.hitPlaces", "Chocs en stéréo"},
    {"options.hitPlaces.help", "Chaque choc s’entend du côté du terrain où il a lieu."},

    {"options.sight", "Vision"},
    {"options.textSize", "Taille du texte"},
    {"options.textSize.help", "La taille de tous les textes."},
    {"options.ballMarks", "Marques sur les balles"},
    {"options.ballMarks.help", "Des anneaux sur les balles rouges, des croix sur les bleues."},
    {"options.ballOutlines", "Contour des balles"},
    {"options.ballOutlines.help", "Un trait autour de chaque balle la détache du terrain."},
    {"options.clearPointer", "Ligne de visée blanche"},
    {"options.clearPointer.help", "La ligne de visée est blanche, bordée de noir."},
    {"options.solidPanels", "Panneaux opaques"},
    {"options.solidPanels.help", "On ne voit rien à travers les panneaux."},

    {"options.sound", "Son"},
    {"options.mute", "Couper le son"},
    {"options.mute.help", "Coupe tous les sons, comme la touche [M]."},
    {"options.crowdVolume", "Volume du public"},
    {"options.crowdVolume.help", "À quel point on entend les spectateurs."},
    {"options.effectVolume", "Volume du jeu"},
    {"options.effectVolume.help", "À quel point on entend les lancers, les chocs et les résultats."},
    {"options.soundNotes", "Afficher les sons"},
    {"options.soundNotes.help", "Chaque son est aussi indiqué par écrit."},

    {"options.rest", "Pause et sécurité"},
    {"options.menuPauses", "Le menu arrête le match"},
    {"options.menuPauses.help", "Tant qu’un menu est ouvert, le match attend."},
    {"options.askToLeave", "Demander avant de quitter"},
    {"options.askToLeave.help", "Si vous fermez la fenêtre en plein match, le jeu demande confirmation."},

    {"leave.question", "Le match n’est pas terminé. Quitter quand même ?"},
    {"leave.leave", "Quitter"},
    {"leave.cancel", "Annuler"},

    {"aim.left", "Gauche"},
    {"aim.right", "Droite"},
    {"aim.up", "Haut"},
    {"aim.down", "Bas"},
    {"aim.ok", "Valider"},
    {"aim.takeBack", "Annuler"},
    {"aim.powerByKeys", "[↑][↓] pour régler la force. [ESPACE] pour lancer"},

    {"switch.begin", "Appuyez pour viser"},
    {"switch.angle", "Appuyez quand la direction est bonne"},
    {"switch.pitch", "Appuyez quand la hauteur est bonne"},
    {"switch.power", "Appuyez quand la force est bonne"},
    {"switch.throw", "Appuyez pour lancer"},
    {"switch.again", "Appuyez pour viser à nouveau"},
    {"switch.goOn", "Appuyez pour continuer"},
    {"switch.resting", "Appuyez pour reprendre le défilement"},

    {"key.space", "Espace"},

    {"controls.title", "Touches et boutons"},
    {"controls.help", "Choisissez +, puis appuyez sur une touche ou un bouton : trois au plus par action. "
                      "Pour en retirer, choisissez-les."},
    {"controls.keyboard", "Clavier"},
    {"controls.accept", "Viser, lancer, valider"},
    {"controls.everything", "Position des balles"},
    {"controls.addKey", "Ajouter une touche"},
    {"controls.addButton", "Ajouter un bouton"},
    {"controls.pressButton", "Appuyez sur un bouton…"},
    {"controls.moved.format", "%@ sert maintenant à « %@ », et non plus à « %@ »."},
    {"controls.needed.format", "%@ reste : « %@ » n’a rien d’autre."},
    {"controls.reserved.format", "%@ sert dans les menus."},
    {"controls.reset", "Rétablir les touches"},
    {"button.cross", "Croix"},
    {"button.circle", "Rond"},
    {"button.square", "Carré"},
    {"button.triangle", "Triangle"},
    {"button.number.format", "Bouton %@"},

    {"sound.throw", "Lancer"},
    {"sound.hit", "Choc de balles"},
    {"sound.victory", "Acclamations"},
});

} // namespace vorbel::L10n::options
