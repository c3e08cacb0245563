// The options in Japanese.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto ja = std::to_array<Text>({
    {"menu.options", "オプション"},

    {"options.throw", "投球"},
    {"options.powerPace", "パワーの動く速さ"},
    {"options.powerPace.help", "投げる前のパワーの動きを遅くするか、矢印キーで決められるようにします。"},
    {"options.asUsual", "通常"},
    {"options.byKeys", "キーで設定"},
    {"options.fineAim", "微調整と取り消し"},
    {"options.fineAim.help",
     "Shiftキーを押しながら矢印キーで細かく狙えます。Backspaceキーでパワー、狙いの順に取り消せます。"},

    {"options.oneSwitch", "ワンスイッチ操作"},
    {"options.switchOn", "スイッチ1つでプレイ"},
    {"options.switchOn.help", "選択肢が自動で順に移り、キーかクリックかボタン1つで決定できます。"},
    {"options.switchPace", "選択肢ごとの待ち時間"},
    {"options.switchPace.help", "それぞれの選択肢が決定を待つ時間です。"},
    {"options.switchAsks", "投げる前に確認"},
    {"options.switchAsks.help", "ボールを放す前に、狙い直すこともできます。"},
    {"options.switchRest", "押したあとの間隔"},
    {"options.switchRest.help", "この時間内にもう一度押しても無視されます。"},
    {"options.switchKey", "スイッチのキーを追加"},
    {"options.switchKey.help",
     "スイッチとして使うキーを増やします。これを選んでから、キーを押してください。"},
    {"options.pressKey", "キーを押してください…"},
    {"options.none", "なし"},
    {"options.seconds.format", "%@秒"},

    {"options.devices", "マウスとコントローラー"},
    {"options.courtButtons", "コート上のボタン"},
    {"options.courtButtons.help", "コートの端の大きなボタンで、狙いも投球も取り消しもできます。"},
    {"options.controller", "コントローラー"},
    {"options.controller.help",
     "ゲームコントローラーやスイッチ用インターフェースで、狙い、投球、選択ができます。"},

    {"options.voice", "読み上げと合図音"},
    {"options.speech", "読み上げ"},
    {"options.speech.help", "メッセージ、狙い、ボールの位置を読み上げます。Wキーでもう一度聞けます。"},
    {"aim.everything", "位置を読み上げ"},
    {"options.tones", "狙いの合図音"},
    {"options.tones.help", "パワーが上がると音が高くなり、角度に合わせて音が左右に動きます。"},
    {"options.hitPlaces", "衝突音をステレオに"},
    {"options.hitPlaces.help", "ボールがぶつかった側から音が聞こえます。"},

    {"options.sight", "見やすさ"},
    {"options.ballMarks", "ボールの目印"},
    {"options.ballMarks.help", "赤いボールには輪、青いボールには十字が付きます。"},
    {"options.ballOutlines", "ボールの輪郭線"},
    {"options.ballOutlines.help", "ボールを線で囲み、コートと見分けやすくします。"},
    {"options.clearPointer", "白いポインター"},
    {"options.clearPointer.help", "狙いのポインターが、黒い縁取りの白になります。"},
    {"options.solidPanels", "透けないパネル"},
    {"options.solidPanels.help", "画面のパネルの後ろが透けなくなります。"},

    {"options.sound", "サウンド"},
    {"options.mute", "消音"},
    {"options.mute.help", "すべての音を消します。Mキーでもできます。"},
    {"options.crowdVolume", "観客の音量"},
    {"options.crowdVolume.help", "観客の声や拍手の大きさです。"},
    {"options.effectVolume", "ゲームの音量"},
    {"options.effectVolume.help", "投球、ボールの衝突、結果の音の大きさです。"},
    {"options.soundNotes", "音を文字で表示"},
    {"options.soundNotes.help", "音が鳴るたびに、何の音かを文字で知らせます。"},

    {"options.rest", "一時停止と終了"},
    {"options.menuPauses", "メニューで試合を止める"},
    {"options.menuPauses.help", "メニューを開いている間、試合は止まって待ちます。"},
    {"options.askToLeave", "終了前に確認"},
    {"options.askToLeave.help", "試合中にウィンドウを閉じようとすると、先に確認します。"},

    {"leave.question", "試合はまだ終わっていません。終了しますか？"},
    {"leave.leave", "終了"},
    {"leave.cancel", "キャンセル"},

    {"aim.left", "左"},
    {"aim.right", "右"},
    {"aim.up", "上"},
    {"aim.down", "下"},
    {"aim.ok", "決定"},
    {"aim.takeBack", "取り消し"},
    {"aim.powerByKeys", "[↑][↓]でパワーを調整。[スペース]で投げる"},

    {"switch.begin", "押して狙いを開始"},
    {"switch.angle", "ちょうどいい方向で押す"},
    {"switch.pitch", "ちょうどいい高さで押す"},
    {"switch.power", "ちょうどいいパワーで押す"},
    {"switch.throw", "押して投げる"},
    {"switch.again", "押して狙い直す"},
    {"switch.goOn", "押して次へ"},
    {"switch.resting", "押して選択を再開"},

    {"key.space", "スペース"},

    {"controls.title", "キーとボタン"},
    {"controls.help", "+を選び、キーかボタンを押してください。1つの操作に3つまで。もう一度選ぶと外せます。"},
    {"controls.keyboard", "キーボード"},
    {"controls.accept", "狙う・投げる・決定"},
    {"controls.everything", "ボールの位置"},
    {"controls.addKey", "キーを追加"},
    {"controls.addButton", "ボタンを追加"},
    {"controls.pressButton", "ボタンを押してください…"},
    {"controls.moved.format", "%@は「%@」用になりました。「%@」からは外れます。"},
    {"controls.needed.format", "%@は外せません。「%@」にはほかにありません。"},
    {"controls.reserved.format", "%@はメニュー用です。"},
    {"controls.reset", "標準のキーに戻す"},
    {"button.cross", "バツ"},
    {"button.circle", "マル"},
    {"button.square", "四角"},
    {"button.triangle", "三角"},
    {"button.number.format", "ボタン%@"},

    {"sound.throw", "投球の音"},
    {"sound.hit", "ボールが当たる音"},
    {"sound.victory", "歓声"},
});

} // namespace vorbel::L10n::options
