// Japanese texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto ja = std::to_array<Text>({
    {"team.red", "赤"},
    {"team.blue", "青"},
    {"team.red.caps", "赤"},
    {"team.blue.caps", "青"},

    {"label.score", "得点："},
    {"label.ballsLeft", "残球："},
    {"label.end", "エンド"},

    {"menu.matchResult", "試合結果"},
    {"menu.nextRound", "次のラウンド"},
    {"menu.mainMenu", "メインメニュー"},

    {"label.end.format", "第%@エンド（全4エンド）"},
    {"label.playingAs.format", "代表：%@・クラス：%@"},
    {"label.rampHint", "ランプ：ボールは床を転がります。[↑][↓]は無効"},
    {"label.aiDifficulty", "AIの難易度"},
    {"label.throwPower", "投球パワー"},
    {"label.aiToggle", "AI"},

    {"difficulty.easy", "初級"},
    {"difficulty.medium", "中級"},
    {"difficulty.hard", "上級"},
    {"difficulty.ultra", "超級"},

    {"menu.language", "言語"},
    {"menu.gameMenu", "ゲーム"},
    {"menu.toggleFullScreen", "フルスクリーン切り替え"},
    {"menu.rank.format", "ランク：%@"},
    {"menu.gamesNext.format", "試合数：%@・次のランクまであと%@試合"},
    {"menu.gamesMax.format", "試合数：%@・最高ランクに到達"},
    {"menu.startGame", "ゲーム開始"},
    {"menu.tournament", "トーナメント"},
    {"menu.rules", "ルール"},
    {"menu.about", "このゲームについて"},
    {"menu.exit", "終了"},
    {"menu.chooseCountry", "どの国・地域の代表でプレイしますか？"},
    {"menu.play", "プレイ"},
    {"menu.sportClass", "スポーツクラス"},
    {"menu.back", "戻る"},
    {"menu.isRealAthlete", "現実でもスポーツ選手です"},
    {"menu.diary", "選手日記"},

    {"diary.totalXP.format", "経験値（XP）：%@"},
    {"diary.empty", "まだ記録がありません。試合をしてみましょう！"},
    {"diary.win", "勝ち"},
    {"diary.loss", "負け"},
    {"diary.draw", "引き分け"},
    {"diary.entry.format", "%@（+%@ XP）"},

    {"bc.desc.bc1",
     "脳性まひ。手または足で投球します。アシスタントを付けられますが、役割は車いすの固定とボールの手渡しに限られます。"},
    {"bc.desc.bc2", "脳性まひ。BC1より身体機能のレベルが高いクラスです。アシスタントは付けられません。"},
    {"bc.desc.bc3",
     "最も重い障がい（診断名は問いません）。コート内でアシスタントの支援を受け、ランプ（勾配具）を使って投球します。"},
    {"bc.desc.bc4",
     "脳性まひ以外の原因による重い運動機能障がい（筋ジストロフィーなど）。ランプもアシスタントも使いません。"},

    {"rank.novice", "ビギナー"},
    {"rank.thirdYouth", "ジュニア3級"},
    {"rank.secondYouth", "ジュニア2級"},
    {"rank.firstYouth", "ジュニア1級"},
    {"rank.thirdRank", "3級"},
    {"rank.secondRank", "2級"},
    {"rank.firstRank", "1級"},
    {"rank.cms", "スポーツマスター候補"},
    {"rank.ms", "スポーツマスター"},

    {"msg.initial", "[スペース]を押して狙いを定めましょう"},
    {"msg.aimingHint", "矢印キー[←][→]と[↑][↓]で狙いを定めます。[スペース]で決定。"},
    {"msg.lockPower", "[スペース]で投球パワーを決定"},
    {"msg.ballInPlay", "ボールが転がっています…"},
    {"msg.turn.format", "%@の番です。[スペース]で狙う"},
    {"msg.endWon.format", "%@がエンドを獲得！得点：%@。"},
    {"msg.endDraw", "このエンドは引き分け！"},
    {"msg.matchDraw", "試合は引き分け！"},
    {"msg.teamWinMatch.format", "%@が試合に勝利！"},
    {"msg.matchOver.format", "%@スコア %@:%@。[スペース]で新しいゲームへ"},
    {"msg.nextEndPrompt.format", "%@ [スペース]で次のエンドへ"},
    {"msg.newEndStart.format", "第%@エンド開始。%@の番です。[スペース]で狙う"},
    {"msg.jackOut.format", "ジャックボールがアウト！投球権は%@へ。[スペース]で狙う"},
    {"msg.tieBreak.format",
     "同点！タイブレーク（第%@エンド）：ジャックボールはコート中央。%@の番です。[スペース]で狙う"},
    {"msg.aiAiming.format", "AI（%@）が狙っています…"},
    {"msg.tournamentRound.format",
     "トーナメント第%@ラウンド（全%@ラウンド）！対戦相手：%@（%@）。[スペース]で狙う"},
    {"msg.tournamentEliminated.format",
     "トーナメント終了：第%@ラウンド（全%@ラウンド）で敗退。[スペース]で新しいゲームへ"},
    {"msg.tournamentChampion.format",
     "トーナメント優勝！全%@ラウンドを制しました！[スペース]で新しいゲームへ"},

    {"country.france", "フランス"},
    {"country.germany", "ドイツ"},
    {"country.thailand", "タイ"},
    {"country.brazil", "ブラジル"},
    {"country.japan", "日本"},
    {"country.southKorea", "韓国"},
    {"country.greatBritain", "イギリス"},
    {"country.portugal", "ポルトガル"},
    {"country.china", "中国"},
    {"country.belgium", "ベルギー"},
    {"country.croatia", "クロアチア"},
    {"country.czechRepublic", "チェコ"},
    {"country.greece", "ギリシャ"},
    {"country.hungary", "ハンガリー"},
    {"country.netherlands", "オランダ"},
    {"country.poland", "ポーランド"},
    {"country.slovakia", "スロバキア"},
    {"country.spain", "スペイン"},
    {"country.ukraine", "ウクライナ"},
    {"country.hongKong", "香港"},
    {"country.indonesia", "インドネシア"},
    {"country.malaysia", "マレーシア"},
    {"country.singapore", "シンガポール"},
    {"country.israel", "イスラエル"},
    {"country.argentina", "アルゼンチン"},
    {"country.bermuda", "バミューダ"},
    {"country.canada", "カナダ"},
    {"country.colombia", "コロンビア"},
    {"country.ecuador", "エクアドル"},
    {"country.elSalvador", "エルサルバドル"},
    {"country.mexico", "メキシコ"},
    {"country.peru", "ペルー"},
    {"country.egypt", "エジプト"},
    {"country.southAfrica", "南アフリカ"},
    {"country.tunisia", "チュニジア"},
    {"country.australia", "オーストラリア"},
    {"country.russia", "ロシア"},

    {"rules.text",
     "カラーボールを白いボール（ジャックボール）のできるだけ近くに投げることが目標です。\n"
     "\n"
     "1. エンドの先攻を決めます。先攻のチームは白いジャックボールを投げ、続けて自チームの最初のカラーボールを投げます。\n"
     "2. 次に投げるのは、その時点でジャックボールに最も近いボールを持っていないチームです。\n"
     "3. 各チームは1エンドに6球ずつ投げます。\n"
     "4. すべてのボールを投げ終えるとエンド終了です。相手の最もよいボールよりジャックボールに近いボール1球につき、1点が入ります。\n"
     "5. 試合は4エンドです。終了時に同点の場合はタイブレークとして追加のエンドを行い、ジャックボールは投げずに審判がコート中央に置きます。\n"
     "\n"
     "操作方法：\n"
     "[スペース] — 狙いを定める / 角度を決める / 投げる\n"
     "[←] [→] [↑] [↓] — 投球の方向と高さ"},

    {"about.text",
     "VORBEL\n"
     "\n"
     "VORBELチーム制作。\n"
     "Qt、OpenGL、Bullet、SDLで作られた3Dボッチャゲームです。\n"
     "\n"
     "VORBELチームのその他の作品：\n"
     "・vorbel-sim — 試合シミュレーター。コンピューター同士が、グラフィックなしで試合を最後まで行います\n"
     "・VORBELのソースコード — 読まれるために書かれたコード。仕組みを知りたいプレイヤーの皆さんへ"},
});

} // namespace vorbel::L10n::texts
