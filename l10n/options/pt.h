// The options in Portuguese.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto pt = std::to_array<Text>({
    {"menu.options", "Opções"},

    {"options.throw", "Lançamento"},
    {"options.powerPace", "Ritmo da força"},
    {"options.powerPace.help", "A força oscila mais devagar antes do lançamento ou é ajustada com as setas."},
    {"options.asUsual", "Normal"},
    {"options.byKeys", "Com as setas"},
    {"options.fineAim", "Mira fina e desfazer"},
    {"options.fineAim.help", "Com Shift, as setas miram em passos pequenos. [Backspace] desfaz a força e "
                             "depois a mira."},

    {"options.oneSwitch", "Um só acionador"},
    {"options.switchOn", "Jogar com um acionador"},
    {"options.switchOn.help", "As opções passam sozinhas; uma tecla, um clique ou um botão escolhe a da "
                              "vez."},
    {"options.switchPace", "Tempo para cada opção"},
    {"options.switchPace.help", "Quanto tempo cada opção espera por você."},
    {"options.switchAsks", "Perguntar antes de lançar"},
    {"options.switchAsks.help", "Antes de soltar a bola, dá para mirar de novo."},
    {"options.switchRest", "Pausa depois de pressionar"},
    {"options.switchRest.help", "Se você pressionar de novo durante a pausa, não conta."},
    {"options.switchKey", "Mais uma tecla"},
    {"options.switchKey.help", "Outra tecla que serve de acionador: escolha esta opção e depois pressione a "
                               "tecla."},
    {"options.pressKey", "Pressione uma tecla..."},
    {"options.none", "Nenhuma"},
    {"options.seconds.format", "%@ s"},

    {"options.devices", "Mouse e controle"},
    {"options.courtButtons", "Botões no campo de jogo"},
    {"options.courtButtons.help", "Botões grandes na borda do campo de jogo para mirar, lançar e desfazer."},
    {"options.controller", "Controle"},
    {"options.controller.help", "Para mirar, lançar e escolher com controles de jogo e adaptadores de "
                                "acionadores."},

    {"options.voice", "Voz e tons"},
    {"options.speech", "Voz"},
    {"options.speech.help", "O jogo fala as mensagens, a mira e onde estão as bolas. A tecla [W] repete."},
    {"aim.everything", "Dizer as posições"},
    {"options.tones", "Tons para a mira"},
    {"options.tones.help", "Um tom sobe com a força e vai da esquerda para a direita com o ângulo."},
    {"options.hitPlaces", "Choques em estéreo"},
    {"options.hitPlaces.help", "Cada choque se ouve do lado do campo de jogo em que acontece."},

    {"options.sight", "Visão"},
    {"options.textSize", "Tamanho do texto"},
    {"options.textSize.help", "O tamanho de todos os textos."},
    {"options.ballMarks", "Marcas nas bolas"},
    {"options.ballMarks.help", "As bolas vermelhas têm anéis; as azuis, cruzes."},
    {"options.ballOutlines", "Bolas com contorno"},
    {"options.ballOutlines.help", "Uma linha em volta de cada bola a destaca do campo de jogo."},
    {"options.clearPointer", "Linha de mira branca"},
    {"options.clearPointer.help", "A linha de mira é branca com borda preta."},
    {"options.solidPanels", "Painéis opacos"},
    {"options.solidPanels.help", "Não se vê nada através dos painéis."},

    {"options.sound", "Som"},
    {"options.mute", "Sem som"},
    {"options.mute.help", "Desliga todos os sons, como a tecla [M]."},
    {"options.crowdVolume", "Volume do público"},
    {"options.crowdVolume.help", "Quanto se ouve o público."},
    {"options.effectVolume", "Volume do jogo"},
    {"options.effectVolume.help", "Quanto se ouvem os lançamentos, os choques e os resultados."},
    {"options.soundNotes", "Mostrar os sons"},
    {"options.soundNotes.help", "Cada som aparece também por escrito."},

    {"options.rest", "Pausa e segurança"},
    {"options.menuPauses", "O menu pausa a partida"},
    {"options.menuPauses.help", "Enquanto um menu está aberto, a partida espera."},
    {"options.askToLeave", "Perguntar antes de sair"},
    {"options.askToLeave.help", "Se você fechar a janela no meio da partida, o jogo pergunta antes."},

    {"leave.question", "A partida ainda não acabou. Sair mesmo assim?"},
    {"leave.leave", "Sair"},
    {"leave.cancel", "Cancelar"},

    {"aim.left", "Esquerda"},
    {"aim.right", "Direita"},
    {"aim.up", "Para cima"},
    {"aim.down", "Para baixo"},
    {"aim.ok", "Confirmar"},
    {"aim.takeBack", "Desfazer"},
    {"aim.powerByKeys", "[↑][↓] para ajustar a força. [ESPAÇO] para lançar"},

    {"switch.begin", "Pressione para mirar"},
    {"switch.angle", "Pressione quando a direção estiver certa"},
    {"switch.pitch", "Pressione quando a altura estiver certa"},
    {"switch.power", "Pressione quando a força estiver certa"},
    {"switch.throw", "Pressione para lançar"},
    {"switch.again", "Pressione para mirar de novo"},
    {"switch.goOn", "Pressione para continuar"},
    {"switch.resting", "Pressione para as opções voltarem a passar"},

    {"key.space", "Espaço"},

    {"controls.title", "Teclas e botões"},
    {"controls.help",
     "Escolha + e pressione uma tecla ou um botão: até três por ação. Para tirar um, escolha-o."},
    {"controls.keyboard", "Teclado"},
    {"controls.accept", "Mirar, lançar, confirmar"},
    {"controls.everything", "Onde está tudo"},
    {"controls.addKey", "Adicionar uma tecla"},
    {"controls.addButton", "Adicionar um botão"},
    {"controls.pressButton", "Pressione um botão..."},
    {"controls.moved.format", "%@ agora é para “%@”, não mais para “%@”."},
    {"controls.needed.format", "%@ fica: “%@” não tem outra opção."},
    {"controls.reserved.format", "%@ é usada nos menus."},
    {"controls.reset", "Restaurar as teclas"},
    {"button.cross", "Cruz"},
    {"button.circle", "Círculo"},
    {"button.square", "Quadrado"},
    {"button.triangle", "Triângulo"},
    {"button.number.format", "Botão %@"},

    {"sound.throw", "Lançamento"},
    {"sound.hit", "Choque de bolas"},
    {"sound.victory", "Comemoração"},
});

} // namespace vorbel::L10n::options
