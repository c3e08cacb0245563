// Hindi texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto hi = std::to_array<Text>({
    {"team.red", "लाल टीम"},
    {"team.blue", "नीली टीम"},
    {"team.red.caps", "लाल टीम"},
    {"team.blue.caps", "नीली टीम"},

    {"label.score", "अंक:"},
    {"label.ballsLeft", "गेंदें:"},
    {"label.end", "एंड"},

    {"menu.matchResult", "मैच का परिणाम"},
    {"menu.nextRound", "अगला राउंड"},
    {"menu.mainMenu", "मुख्य मेनू"},

    {"label.end.format", "एंड %@ / 4"},
    {"label.playingAs.format", "देश: %@ · वर्ग %@"},
    {"label.rampHint", "रैंप: गेंद ज़मीन पर लुढ़कती है, [↑][↓] बंद"},
    {"label.aiDifficulty", "एआई का स्तर"},
    {"label.throwPower", "थ्रो की ताकत"},
    {"label.aiToggle", "एआई"},

    {"difficulty.easy", "आसान"},
    {"difficulty.medium", "मध्यम"},
    {"difficulty.hard", "कठिन"},
    {"difficulty.ultra", "अल्ट्रा"},

    {"menu.language", "भाषा"},
    {"menu.gameMenu", "गेम"},
    {"menu.toggleFullScreen", "फ़ुल स्क्रीन चालू/बंद"},
    {"menu.rank.format", "रैंक: %@"},
    {"menu.gamesNext.format", "खेले गए मैच: %@ · अगली रैंक तक: %@"},
    {"menu.gamesMax.format", "खेले गए मैच: %@ · सर्वोच्च रैंक प्राप्त"},
    {"menu.startGame", "गेम शुरू करें"},
    {"menu.tournament", "टूर्नामेंट"},
    {"menu.rules", "नियम"},
    {"menu.about", "गेम के बारे में"},
    {"menu.exit", "बाहर निकलें"},
    {"menu.chooseCountry", "किस देश के लिए खेलना है?"},
    {"menu.play", "खेलें"},
    {"menu.sportClass", "खेल वर्ग"},
    {"menu.back", "वापस"},
    {"menu.isRealAthlete", "असल ज़िंदगी में खिलाड़ी हूँ"},
    {"menu.diary", "खिलाड़ी की डायरी"},

    {"diary.totalXP.format", "अनुभव (XP): %@"},
    {"diary.empty", "अभी कोई प्रविष्टि नहीं। एक मैच खेलें!"},
    {"diary.win", "जीत"},
    {"diary.loss", "हार"},
    {"diary.draw", "ड्रॉ"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "सेरेब्रल पाल्सी, हाथ या पैर से थ्रो। सहायक की अनुमति है — केवल व्हीलचेयर को स्थिर रखने और गेंद देने के लिए।"},
    {"bc.desc.bc2", "सेरेब्रल पाल्सी, BC1 से बेहतर कार्यात्मक स्तर। सहायक की अनुमति नहीं।"},
    {"bc.desc.bc3", "सबसे गंभीर अक्षमताएँ (कोई भी निदान), कोर्ट पर सहायक की मदद से रैंप (ढलान) द्वारा थ्रो।"},
    {"bc.desc.bc4",
     "गति संबंधी गंभीर अक्षमताएँ, जिनका कारण सेरेब्रल पाल्सी नहीं है (जैसे मस्कुलर डिस्ट्रॉफ़ी)। न रैंप, न सहायक।"},

    {"rank.novice", "नौसिखिया"},
    {"rank.thirdYouth", "जूनियर तृतीय श्रेणी"},
    {"rank.secondYouth", "जूनियर द्वितीय श्रेणी"},
    {"rank.firstYouth", "जूनियर प्रथम श्रेणी"},
    {"rank.thirdRank", "तृतीय श्रेणी"},
    {"rank.secondRank", "द्वितीय श्रेणी"},
    {"rank.firstRank", "प्रथम श्रेणी"},
    {"rank.cms", "कैंडिडेट मास्टर ऑफ़ स्पोर्ट"},
    {"rank.ms", "मास्टर ऑफ़ स्पोर्ट"},

    {"msg.initial", "निशाना साधने के लिए [स्पेस] दबाएँ"},
    {"msg.aimingHint", "तीर [←][→] और [↑][↓] से निशाना साधें। [स्पेस] — ठीक है।"},
    {"msg.lockPower", "[स्पेस] से थ्रो की ताकत तय करें"},
    {"msg.ballInPlay", "गेंद चल रही है..."},
    {"msg.turn.format", "%@ की बारी। [स्पेस] से निशाना साधें"},
    {"msg.endWon.format", "%@ ने एंड जीता! अंक: %@।"},
    {"msg.endDraw", "एंड ड्रॉ रहा!"},
    {"msg.matchDraw", "मैच ड्रॉ रहा!"},
    {"msg.teamWinMatch.format", "%@ ने मैच जीत लिया!"},
    {"msg.matchOver.format", "%@ स्कोर %@:%@। [स्पेस] से नया गेम"},
    {"msg.nextEndPrompt.format", "%@ [स्पेस] से अगला एंड"},
    {"msg.newEndStart.format", "एंड %@ शुरू। %@ की बारी। [स्पेस] से निशाना साधें"},
    {"msg.jackOut.format", "जैक बाहर चला गया! अब %@ की बारी। [स्पेस] से निशाना साधें"},
    {"msg.tieBreak.format", "स्कोर बराबर! अतिरिक्त एंड %@: जैक केंद्र में रखा गया। %@ की बारी। [स्पेस] से निशाना साधें"},
    {"msg.aiAiming.format", "एआई (%@) निशाना साध रहा है..."},
    {"msg.tournamentRound.format", "टूर्नामेंट राउंड %@/%@! प्रतिद्वंद्वी: %@ (%@)। [स्पेस] से निशाना साधें"},
    {"msg.tournamentEliminated.format", "टूर्नामेंट समाप्त: राउंड %@/%@ में बाहर। [स्पेस] से नया गेम"},
    {"msg.tournamentChampion.format", "टूर्नामेंट चैंपियन! आपने सभी %@ राउंड जीत लिए! [स्पेस] से नया गेम"},

    {"country.france", "फ़्रांस"},
    {"country.germany", "जर्मनी"},
    {"country.thailand", "थाईलैंड"},
    {"country.brazil", "ब्राज़ील"},
    {"country.japan", "जापान"},
    {"country.southKorea", "दक्षिण कोरिया"},
    {"country.greatBritain", "ग्रेट ब्रिटेन"},
    {"country.portugal", "पुर्तगाल"},
    {"country.china", "चीन"},
    {"country.belgium", "बेल्जियम"},
    {"country.croatia", "क्रोएशिया"},
    {"country.czechRepublic", "चेक गणराज्य"},
    {"country.greece", "ग्रीस"},
    {"country.hungary", "हंगरी"},
    {"country.netherlands", "नीदरलैंड"},
    {"country.poland", "पोलैंड"},
    {"country.slovakia", "स्लोवाकिया"},
    {"country.spain", "स्पेन"},
    {"country.ukraine", "यूक्रेन"},
    {"country.hongKong", "हॉन्ग कॉन्ग"},
    {"country.indonesia", "इंडोनेशिया"},
    {"country.malaysia", "मलेशिया"},
    {"country.singapore", "सिंगापुर"},
    {"country.israel", "इज़राइल"},
    {"country.argentina", "अर्जेंटीना"},
    {"country.bermuda", "बरमूडा"},
    {"country.canada", "कनाडा"},
    {"country.colombia", "कोलंबिया"},
    {"country.ecuador", "इक्वाडोर"},
    {"country.elSalvador", "अल साल्वाडोर"},
    {"country.mexico", "मेक्सिको"},
    {"country.peru", "पेरू"},
    {"country.egypt", "मिस्र"},
    {"country.southAfrica", "दक्षिण अफ़्रीका"},
    {"country.tunisia", "ट्यूनीशिया"},
    {"country.australia", "ऑस्ट्रेलिया"},
    {"country.russia", "रूस"},

    {"rules.text",
     "लक्ष्य है रंगीन गेंदों को सफ़ेद गेंद (जैक) के यथासंभव करीब फेंकना।\n"
     "\n"
     "1. पहले तय होता है कि एंड कौन शुरू करेगा: वह टीम सफ़ेद जैक फेंकती है, फिर अपनी पहली रंगीन गेंद।\n"
     "2. अगला थ्रो वह टीम करती है जिसकी गेंद इस समय जैक के सबसे करीब नहीं है।\n"
     "3. हर एंड में हर टीम के पास 6 गेंदें होती हैं।\n"
     "4. सभी गेंदें फेंकी जा चुकने पर एंड समाप्त होता है: जिस टीम की गेंदें प्रतिद्वंद्वी की सबसे अच्छी गेंद के मुकाबले जैक के ज़्यादा करीब हों, उसे ऐसी हर गेंद पर एक अंक मिलता है।\n"
     "5. मैच में 4 एंड होते हैं। यदि मैच के बाद स्कोर बराबर हो, तो एक अतिरिक्त एंड खेला जाता है; उसमें जैक फेंका नहीं जाता, बल्कि रेफ़री उसे केंद्र में रखता है।\n"
     "\n"
     "कंट्रोल:\n"
     "[स्पेस] — निशाना साधना शुरू करें / कोण तय करें / फेंकें।\n"
     "[←] [→] [↑] [↓] — थ्रो की दिशा और ऊँचाई।"},

    {"about.text",
     "VORBEL\n"
     "\n"
     "VORBEL टीम द्वारा निर्मित।\n"
     "Qt, OpenGL, Bullet और SDL से बना 3D बोचिया गेम।\n"
     "\n"
     "VORBEL के निर्माताओं की ओर से यह भी:\n"
     "· vorbel-sim — मैच सिम्युलेटर: कंप्यूटर खिलाड़ी बिना ग्राफ़िक्स के पूरे मैच खेलते हैं\n"
     "· VORBEL का सोर्स कोड — पढ़ने के लिए लिखा गया, उन खिलाड़ियों के लिए जो देखना चाहते हैं कि यह कैसे काम करता है"},
});

} // namespace vorbel::L10n::texts
