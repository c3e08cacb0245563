// Portuguese texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto pt = std::to_array<Text>({
    {"team.red", "Vermelho"},
    {"team.blue", "Azul"},
    {"team.red.caps", "VERMELHO"},
    {"team.blue.caps", "AZUL"},

    {"label.score", "Pontos:"},
    {"label.ballsLeft", "Bolas:"},
    {"label.end", "Parcial"},

    {"menu.matchResult", "Resultado da partida"},
    {"menu.nextRound", "Próxima fase"},
    {"menu.mainMenu", "Menu principal"},

    {"label.end.format", "Parcial %@ de 4"},
    {"label.playingAs.format", "País: %@ · Classe %@"},
    {"label.rampHint", "Calha: a bola fica no chão, [↑][↓] desativadas"},
    {"label.aiDifficulty", "Dificuldade da IA"},
    {"label.throwPower", "Força do lançamento"},
    {"label.aiToggle", "IA"},

    {"difficulty.easy", "Fácil"},
    {"difficulty.medium", "Média"},
    {"difficulty.hard", "Difícil"},
    {"difficulty.ultra", "Ultra"},

    {"menu.language", "Idioma"},
    {"menu.gameMenu", "Jogo"},
    {"menu.toggleFullScreen", "Tela cheia"},
    {"menu.rank.format", "Nível: %@"},
    {"menu.gamesNext.format", "Partidas jogadas: %@ · para o próximo nível: %@"},
    {"menu.gamesMax.format", "Partidas jogadas: %@ · nível máximo atingido"},
    {"menu.startGame", "Iniciar partida"},
    {"menu.tournament", "Torneio"},
    {"menu.rules", "Regras"},
    {"menu.about", "Sobre"},
    {"menu.exit", "Sair"},
    {"menu.chooseCountry", "Por qual país você joga?"},
    {"menu.play", "Jogar"},
    {"menu.sportClass", "Classe esportiva"},
    {"menu.back", "Voltar"},
    {"menu.isRealAthlete", "Sou atleta na vida real"},
    {"menu.diary", "Diário de atleta"},

    {"diary.totalXP.format", "Experiência (XP): %@"},
    {"diary.empty", "Diário vazio. Jogue uma partida!"},
    {"diary.win", "Vitória"},
    {"diary.loss", "Derrota"},
    {"diary.draw", "Empate"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Paralisia cerebral, lança com a mão ou com o pé. É permitido um assistente, apenas para estabilizar a cadeira de rodas e entregar a bola."},
    {"bc.desc.bc2", "Paralisia cerebral, nível funcional superior ao da BC1. Não é permitido assistente."},
    {"bc.desc.bc3",
     "As deficiências mais graves (qualquer diagnóstico), lança com uma calha (rampa) e o apoio de um assistente no campo de jogo."},
    {"bc.desc.bc4",
     "Deficiências motoras graves não causadas por paralisia cerebral (por exemplo, distrofia muscular). Sem calha e sem assistente."},

    {"rank.novice", "Iniciante"},
    {"rank.thirdYouth", "3ª categoria juvenil"},
    {"rank.secondYouth", "2ª categoria juvenil"},
    {"rank.firstYouth", "1ª categoria juvenil"},
    {"rank.thirdRank", "3ª categoria"},
    {"rank.secondRank", "2ª categoria"},
    {"rank.firstRank", "1ª categoria"},
    {"rank.cms", "Candidato a Mestre do Esporte"},
    {"rank.ms", "Mestre do Esporte"},

    {"msg.initial", "Pressione [ESPAÇO] para mirar"},
    {"msg.aimingHint", "Setas [←][→] e [↑][↓] para mirar. [ESPAÇO] para confirmar."},
    {"msg.lockPower", "[ESPAÇO] Fixar a força do lançamento"},
    {"msg.ballInPlay", "Bola em jogo..."},
    {"msg.turn.format", "Vez do %@. [ESPAÇO] para mirar"},
    {"msg.endWon.format", "%@ vence o parcial! Pontos: %@."},
    {"msg.endDraw", "Empate no parcial!"},
    {"msg.matchDraw", "Empate na partida!"},
    {"msg.teamWinMatch.format", "%@ vence a partida!"},
    {"msg.matchOver.format", "%@ Resultado %@-%@. [ESPAÇO] para uma nova partida"},
    {"msg.nextEndPrompt.format", "%@ [ESPAÇO] para o próximo parcial"},
    {"msg.newEndStart.format", "Começa o parcial %@. Vez do %@. [ESPAÇO] para mirar"},
    {"msg.jackOut.format", "Jack fora! Vez do %@. [ESPAÇO] para mirar"},
    {"msg.tieBreak.format",
     "Partida empatada! Parcial de desempate %@: jack no centro. Vez do %@. [ESPAÇO] para mirar"},
    {"msg.aiAiming.format", "A IA (%@) está mirando..."},
    {"msg.tournamentRound.format", "Torneio, fase %@ de %@! Adversário: %@ (%@). [ESPAÇO] para mirar"},
    {"msg.tournamentEliminated.format",
     "Fim do torneio: eliminação na fase %@ de %@. [ESPAÇO] para uma nova partida"},
    {"msg.tournamentChampion.format",
     "VITÓRIA NO TORNEIO! Você venceu todas as %@ fases! [ESPAÇO] para uma nova partida"},

    {"country.france", "França"},
    {"country.germany", "Alemanha"},
    {"country.thailand", "Tailândia"},
    {"country.brazil", "Brasil"},
    {"country.japan", "Japão"},
    {"country.southKorea", "Coreia do Sul"},
    {"country.greatBritain", "Grã-Bretanha"},
    {"country.portugal", "Portugal"},
    {"country.china", "China"},
    {"country.belgium", "Bélgica"},
    {"country.croatia", "Croácia"},
    {"country.czechRepublic", "República Tcheca"},
    {"country.greece", "Grécia"},
    {"country.hungary", "Hungria"},
    {"country.netherlands", "Países Baixos"},
    {"country.poland", "Polônia"},
    {"country.slovakia", "Eslováquia"},
    {"country.spain", "Espanha"},
    {"country.ukraine", "Ucrânia"},
    {"country.hongKong", "Hong Kong"},
    {"country.indonesia", "Indonésia"},
    {"country.malaysia", "Malásia"},
    {"country.singapore", "Singapura"},
    {"country.israel", "Israel"},
    {"country.argentina", "Argentina"},
    {"country.bermuda", "Bermudas"},
    {"country.canada", "Canadá"},
    {"country.colombia", "Colômbia"},
    {"country.ecuador", "Equador"},
    {"country.elSalvador", "El Salvador"},
    {"country.mexico", "México"},
    {"country.peru", "Peru"},
    {"country.egypt", "Egito"},
    {"country.southAfrica", "África do Sul"},
    {"country.tunisia", "Tunísia"},
    {"country.australia", "Austrália"},
    {"country.russia", "Rússia"},

    {"rules.text",
     "O objetivo é lançar as bolas coloridas o mais perto possível da bola branca (o jack).\n"
     "\n"
     "1. Primeiro decide-se quem começa o parcial: esse lado lança o jack branco e depois a sua primeira bola colorida.\n"
     "2. Em seguida lança o lado cuja bola NÃO é, nesse momento, a mais próxima do jack.\n"
     "3. Cada lado tem 6 bolas por parcial.\n"
     "4. Lançadas todas as bolas, o parcial termina: o lado com bolas mais próximas do jack do que a melhor bola do adversário ganha um ponto por cada uma delas.\n"
     "5. Uma partida tem 4 parciais. Se terminar empatada, joga-se um parcial de desempate, e o jack não é lançado, mas colocado no centro pelo árbitro.\n"
     "\n"
     "Controles:\n"
     "[ESPAÇO] — começar a mirar / fixar o ângulo / lançar.\n"
     "[←] [→] [↑] [↓] — direção e altura do lançamento."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "Criado pela equipe VORBEL.\n"
     "Um jogo de boccia (bocha paralímpica) em 3D, feito com Qt, OpenGL, Bullet e SDL.\n"
     "\n"
     "Também dos criadores do VORBEL:\n"
     "· vorbel-sim — o simulador de partidas: adversários controlados pelo computador jogam partidas inteiras, sem gráficos\n"
     "· o código-fonte do VORBEL — escrito para ser lido, para quem gosta de ver como funciona"},
});

} // namespace vorbel::L10n::texts
