// Further texts in Japanese.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto ja = std::to_array<Text>({
    {"end.equidistant.format", "同じ距離です！赤+%@、青+%@。"},
    {"hud.tournament.format", "%@ %@（全%@ラウンド）・%@（%@）"},
    {"about.pages", "ゲームのページ"},
    {"notice.endedBadly.format",
     "前回、ゲームが予期せず終了しました。わかっていることは次のファイルに記録されています。\n%@"},

    {"page.boccia.title", "ボッチャとは"},
    {"page.boccia.text", "ボッチャは正確さを競うスポーツで、1984年からパラリンピックの正式競技です。重い障が"
                         "いのある選手が車いすに乗ってプレーします。赤と青に分かれて6球ずつ投げ、白いジャック"
                         "ボールにどれだけ近づけられるかを競います。"},
    {"page.licence", "ライセンス"},
});

} // namespace vorbel::L10n::extra
