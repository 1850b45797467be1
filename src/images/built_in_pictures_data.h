// Made by tools/make_pictures from assets/pictures; change those and run it again.
// sources 01bd684273a3090e1a97265bb82e589cbd42ad824e36ba1357ff1806c4734b70
// table eb5d6b8e3b33a47c447640956c0ce50fb4e89b0ff460145a588797a8c952d318
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace qrn::built_in_pictures {

/// One character a pixel, rows top down, for scale 1, 2 and 3; a character's place in kDigits is its color's
/// place in the palette (0xAARRGGBB, not premultiplied).
struct PictureTable {
  std::span<const std::uint32_t> colors;
  std::array<std::string_view, 3> scales;
};

inline constexpr int kWidth = 16;
inline constexpr int kHeight = 15;
inline constexpr std::string_view kDigits =
    ".#abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789!$%&()*+,-/:;<=>@[]^_`{|}~";

// clang-format off
// Nothing.
inline constexpr std::uint32_t kBlankColors[] = {
    0x00000000,
};
inline constexpr std::string_view kBlank1x =
    "................"
    "................"
    "................"
    "................"
    "................"
    "................"
    "................"
    "................"
    "................"
    "................"
    "................"
    "................"
    "................"
    "................"
    "................";
inline constexpr std::string_view kBlank2x =
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................"
    "................................";
inline constexpr std::string_view kBlank3x =
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................";

// Folder: opens a menu.
inline constexpr std::uint32_t kFolderColors[] = {
    0x00000000, 0xFFFFD766, 0xFF6E4A00, 0xFFE5A823, 0xFFFFEDB5, 0x02808000, 0xFFE4A823, 0x136B5100,
    0xD96E4A00, 0xFA6E4A00, 0x9D6E4B00, 0xFF9C6F0D, 0xFFE3A622, 0x16684600, 0xED6E4A00, 0xFB6E4A00,
    0xFC6F4C00, 0x40704C00, 0xFFC18B18, 0x866E4A00, 0xC36E4B00, 0xFF865D07, 0xFFD39A1E, 0x926E4900,
    0xCB6F4A00, 0xFFDBA020, 0xF5724E01, 0xFFC8911A, 0xA0765003, 0xD36E4A00, 0xE76E4A00, 0xFFA2720F,
    0xA26E4A00, 0x966F4B00, 0xF7714C01, 0xFF835A06, 0x19704700, 0xFA714D01, 0xF3704C01, 0xA2745003,
    0xFFE1A522, 0xA06E4900, 0xD76E4A00, 0xEB6E4A00, 0xFF704C01, 0xFF9E710E, 0xFD6F4B00, 0x9E6E4A00,
    0xA16D4A00, 0x12714700, 0x956E4A00, 0xFFDAA020, 0xF96E4A00, 0xFF835B06, 0xFFD49B1E, 0xFFE4A723,
};
inline constexpr std::string_view kFolder1x =
    "................"
    "................"
    ".LSaaaGp........"
    ".oMbbbzyp......."
    ".abbbbbzJaaaaoA."
    ".abbbbbbbbbbbMo."
    ".abbbbbbbbbbbba."
    ".acccccccccccca."
    ".a############a."
    ".a############a."
    ".a############a."
    ".a############a."
    ".a############a."
    ".KaaaaaaaaaaaaK."
    "................";
inline constexpr std::string_view kFolder2x =
    "................................"
    "................................"
    "................................"
    "................................"
    "..VEmaaaaaaaawl................."
    "..EaaaaaaaaaaaBl................"
    "..ma0bbbbbbbXHaBl..............."
    "..aabbbbbbbbbxZaOI.............."
    "..aabbbbbbbbbbXHaaaaaaaaaaamUV.."
    "..aabbbbbbbbbbbXtaaaaaaaaaaaaN.."
    "..aabbbbbbbbbbbbbbbbbbbbbbbuaP.."
    "..aabbbbbbbbbbbbbbbbbbbbbbbbaa.."
    "..aabbbbbbbbbbbbbbbbbbbbbbbbaa.."
    "..aabbbbbbbbbbbbbbbbbbbbbbbbaa.."
    "..aaccccccccccccccccccccccccaa.."
    "..aaccccccccccccccccccccccccaa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aaaaaaaaaaaaaaaaaaaaaaaaaaaa.."
    "..saaaaaaaaaaaaaaaaaaaaaaaaaas.."
    "................................"
    "................................";
inline constexpr std::string_view kFolder3x =
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "....fWghaaaaaaaaaaanvd.........................."
    "...fCaaaaaaaaaaaaaaaaid........................."
    "...Faaaaaaaaaaaaaaaaaaid........................"
    "...gaaqkbbbbbbbbbbejaaaid......................."
    "...haakbbbbbbbbbbbbejaaaid......................"
    "...aaabbbbbbbbbbbbbb1RaaaTd....................."
    "...aaabbbbbbbbbbbbbbbejaaaaaaaaaaaaaaaaahgWf...."
    "...aaabbbbbbbbbbbbbbbbejaaaaaaaaaaaaaaaaaaaCf..."
    "...aaabbbbbbbbbbbbbbbbbeDQaaaaaaaaaaaaaaaaaaF..."
    "...aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbkqaag..."
    "...aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbkaah..."
    "...aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbaaa..."
    "...aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbaaa..."
    "...aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbaaa..."
    "...aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbaaa..."
    "...aaaccccccccccccccccccccccccccccccccccccaaa..."
    "...aaaccccccccccccccccccccccccccccccccccccaaa..."
    "...aaaccccccccccccccccccccccccccccccccccccaaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa..."
    "...YaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaY..."
    "...rnaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaanr..."
    "................................................"
    "................................................"
    "................................................";

// Gear with a start mark: runs a method.
inline constexpr std::uint32_t kMethodColors[] = {
    0x00000000, 0xFF2B3A4A, 0xFFD3DCE5, 0xFF3CCF68, 0xFF0D4F22, 0x3E293A4A, 0xF42B394A, 0x4429384B,
    0xFF3F4D5C, 0xFF798692, 0xFFD2DAE3, 0x702B3949, 0x782B394A, 0x542B3A49, 0x742C394B, 0x6E2C3A4A,
    0xFF3E4C5C, 0xB20D4F22, 0xFF258F45, 0xFF9BB4AE, 0xFF528167, 0xD50D4F22, 0xFF30B056, 0x860D5022,
    0xFF186D32, 0xD22B3A4A, 0xFFB6C0CA, 0x1C095224, 0x962B3A4B, 0xFF5E6A79, 0xFF3C7050, 0x5F0D5123,
    0xFF6B927F, 0xED0F5425, 0xF51C7A3A, 0x990D4E21, 0xFF8B96A2, 0xFF1A4633, 0xC30D4E22, 0x2D0B4F22,
    0xFF2BA04F, 0xF314622C, 0x6F0E4E22, 0x480E4E23, 0xFFC4CDD7, 0xFF37C161, 0xFF6B7884, 0xFF26613C,
    0xFF125E2A, 0x0E124924, 0xFF515F6D, 0xFF9DA8B3, 0xA50C4F22, 0xFFABB6C0, 0x3D0D4F21, 0x520C4E22,
    0xFF49795D, 0xF40D4F22, 0xFB334151, 0x7C0C4E23, 0xFF218640, 0xFF1B7637, 0xFF485565, 0xFF15552B,
    0xFF20423C, 0xDE0D4F22, 0xCC105527, 0x172C374E, 0x250E4C22, 0xFF28974A, 0xFF2EA853, 0xFF2E6642,
    0xFF729787, 0xFF93AEA6, 0xFFB7C8CA, 0xEB2A3A4A, 0xBC0E4F22, 0x970F5827, 0xF70F5726, 0x652B3A49,
    0x910C4F21, 0xFFCAD4DD, 0xFF1E7D3C, 0xFF154A2C, 0xFF253E43, 0xFF64717F, 0xE60D4F22, 0x660D5023,
    0xCF0E4F22, 0x5B2A3B49,
};
inline constexpr std::string_view kMethod1x =
    ".....###........"
    "..nk&#a#&kn....."
    ".>g`4`a`4`gn...."
    ".k`iQaaa[i`k...."
    ".&4QaaaaaQ4&...."
    "##`aaW#Waa`##..."
    "#aaaa###99E[#..."
    "##`aaW#WcR]9!..."
    ".&4[aaaacbbuN%L."
    ".k`iQaaacbbbb)=<"
    ".>g`4`a`cbbbbbRc"
    "..nk&#a#cbbbb)=<"
    ".....###cbbuN%L."
    "........cRGFD..."
    "........33vV....";
inline constexpr std::string_view kMethod2x =
    "..........######................"
    "..........######................"
    ".....lm...##aa##...ml..........."
    "....l##k.l##aa##l.m##~.........."
    "...l##g#:###aa###:#g##~........."
    "..l##h[W#8IyaayI8#W[h##~........"
    "..m#g[a[XiaaaaaaiX[a[g#m........"
    "...j#W[aaaaaaaaaaaa[W#k........."
    "....:#XaaaaaaaaaaaaX#:.........."
    "...l#8iaaaaaaaaaaaai8#l........."
    "#####IaaaaXo##oXaaaaI#####......"
    "#####yaaaao####oaaaay#####......"
    "##aaaaaaaa######Ccc+raaa##......"
    "##aaaaaaaa######ccccc2/a##......"
    "#####yaaaao####occb)9ccJ##......"
    "#####IaaaaXo##oXccbbR6ccc!......"
    "...l#8iaaaaaaaaaccbbbbuwcc}0...."
    "....:#XaaaaaaaaaccbbbbbbMUccYz.."
    "...m#W[aaaaaaaaaccbbbbbbbbqcc35V"
    "..m#g[a[XiaaaaaaccbbbbbbbbbR7ccK"
    "..l##h[W#8IyaayIccbbbbbbbbbbb*cc"
    "...l##g#:###aa##ccbbbbbbbbbbb*cc"
    "....l##k.l##aa##ccbbbbbbbbbR7ccK"
    ".....lm...##aa##ccbbbbbbbbqcc35V"
    "..........######ccbbbbbbMUccY&.."
    "..........######ccbbbbuwcc}0...."
    "................ccbbR6cc{|......"
    "................ccb)9cc@V......."
    "................cccccp(........."
    "................KcctP...........";
inline constexpr std::string_view kMethod3x =
    "...............#########........................"
    "...............#########........................"
    "...............#########........................"
    "........fn.....###aaa###.....nf................."
    ".......de#k....###aaa###....j#ef................"
    "......de###k.dA###aaa###Ad.j###ef..............."
    ".....de#####x#####aaa#####x#####ef.............."
    "....de##oZ8#####oBaaaBo#####gZg##ef............."
    "...de##oyaQ8##SZiaaaaaiZS##gQaQg##ef............"
    "...n###ZaaaQ`yaaaaaaaaaaay`QaaaZ###n............"
    "....j##gQaaaaaaaaaaaaaaaaaaaaaQ8##k............."
    ".....j##gQaaaaaaaaaaaaaaaaaaaQ8##k.............."
    "......x##`aaaaaaaaaaaaaaaaaaa`##x..............."
    ".....d###yaaaaaaaaaaaaaaaaaaay###d.............."
    ".....A##SaaaaaaaaaaaaaaaaaaaaaS##A.............."
    "########Zaaaaaaihg###ghiaaaaaaZ########........."
    "#######oiaaaaaah#######haaaaaaio#######........."
    "#######Baaaaaaag#######oaaaaaaaB#######........."
    "###aaaaaaaaaaaa#########Eccccs/aaaaa###........."
    "###aaaaaaaaaaaa#########cccccc9,[aaa###........."
    "###aaaaaaaaaaaa#########ccccccccT-aa###........."
    "#######Baaaaaaag#######occcbuwcccc^_###........."
    "#######oiaaaaaah#######hcccbbbMUccccJ##........."
    "########Zaaaaaaihg###ghicccbbbbRqccccc!........."
    ".....A##SaaaaaaaaaaaaaaacccbbbbbbR7cccc}0......."
    ".....d###yaaaaaaaaaaaaaacccbbbbbbbb*Uccccpz....."
    "......x##`aaaaaaaaaaaaaacccbbbbbbbbbb)9ccc35V..."
    ".....j##gQaaaaaaaaaaaaaacccbbbbbbbbbbbR]cccc{D.."
    "....j##gQaaaaaaaaaaaaaaacccbbbbbbbbbbbbbuwcccc;("
    "...n###ZaaaQ`yaaaaaaaaaacccbbbbbbbbbbbbbbb)9ccc$"
    "...de##oyaQ8##SZiaaaaaiZcccbbbbbbbbbbbbbbbbR6ccc"
    "....de##gZ8#####oBaaaBo#cccbbbbbbbbbbbbbbbbbbccc"
    ".....de#####x#####aaa###cccbbbbbbbbbbbbbbbbR6ccc"
    "......de###k.dA###aaa###cccbbbbbbbbbbbbbbb)9ccc$"
    ".......de#k....###aaa###cccbbbbbbbbbbbbbuwcccc;("
    "........fn.....###aaa###cccbbbbbbbbbbbR]cccc{D.."
    "...............#########cccbbbbbbbbbb)9ccc35V..."
    "...............#########cccbbbbbbbb*Uccccpz....."
    "...............#########cccbbbbbbR7cccc}0......."
    "........................cccbbbbRqccccFO........."
    "........................cccbbbMUccccH&.........."
    "........................cccbuwcccc;L............"
    "........................cccccccc$1.............."
    "........................3ccccc35V..............."
    "........................vccccYz.................";

// Window: opens a dialog.
inline constexpr std::uint32_t kDialogColors[] = {
    0x00000000, 0xFFF7F9FB, 0xFF2B3A4A, 0xFF2F7DE1, 0xFF9FB0C0, 0xFF5B6B7B, 0xFFFFFFFF, 0xF92B3A4A,
    0x04404040, 0x762B3A49, 0xFC2E3D4C, 0xCB2B3A4A, 0xE52B3A49, 0xE62B3A4A, 0x062B2B55, 0xCC2B3A4A,
    0xFFF2F4F7, 0xFFC8CCD2, 0xFF959DA6, 0x8A2B394A, 0xBF2B3949, 0x90374755, 0xFFEBEDF0, 0x862C394A,
    0x8C374756, 0x882B3A49, 0xFFC6CBD1, 0x8E364656, 0x872B3B4A, 0x752C3B4A, 0xFB2E3C4C, 0x772B3A4B,
    0xC02B3A4A, 0x07244949, 0xFFF1F4F6, 0x892B3A4A, 0x8F374656,
};
inline constexpr std::string_view kDialog1x =
    "................"
    "tiaaaaaaaaaaaaiI"
    "ibbbbbbbbbbbbbbC"
    "abbbbbbbbbbbeeba"
    "abbbbbbbbbbbbbba"
    "a##############a"
    "a##############a"
    "a##ddd#cccccc##a"
    "a##############a"
    "a##ddd#cccccc##a"
    "a##############a"
    "a########bbbb##a"
    "iu############uC"
    "ziaaaaaaaaaaaaiw"
    "................";
inline constexpr std::string_view kDialog2x =
    "................................"
    "................................"
    "FrlaaaaaaaaaaaaaaaaaaaaaaaaaalHm"
    "raaaaaaaaaaaaaaaaaaaaaaaaaaaaaax"
    "labbbbbbbbbbbbbbbbbbbbbbbbbbbbak"
    "aabbbbbbbbbbbbbbbbbbbbbbbbbbbbaa"
    "aabbbbbbbbbbbbbbbbbbbbbbeeeebbaa"
    "aabbbbbbbbbbbbbbbbbbbbbbeeeebbaa"
    "aabbbbbbbbbbbbbbbbbbbbbbbbbbbbaa"
    "aabbbbbbbbbbbbbbbbbbbbbbbbbbbbaa"
    "aa############################aa"
    "aa############################aa"
    "aa############################aa"
    "aa############################aa"
    "aa####dddddd##cccccccccccc####aa"
    "aa####dddddd##cccccccccccc####aa"
    "aa############################aa"
    "aa############################aa"
    "aa####dddddd##cccccccccccc####aa"
    "aa####dddddd##cccccccccccc####aa"
    "aa############################aa"
    "aa############################aa"
    "aa################bbbbbbbb####aa"
    "aa################bbbbbbbb####aa"
    "aa############################aa"
    "lap##########################yak"
    "xaaaaaaaaaaaaaaaaaaaaaaaaaaaaaav"
    "mHkaaaaaaaaaaaaaaaaaaaaaaaaaakAm"
    "................................"
    "................................";
inline constexpr std::string_view kDialog3x =
    "................................................"
    "................................................"
    "................................................"
    ".ghnfaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaafnhg."
    "gsaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaEg"
    "Daaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaah"
    "naabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbaaj"
    "faabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbaaf"
    "aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbaaa"
    "aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbeeeeeebbbaaa"
    "aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbeeeeeebbbaaa"
    "aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbeeeeeebbbaaa"
    "aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbaaa"
    "aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbaaa"
    "aaabbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbaaa"
    "aaa##########################################aaa"
    "aaa##########################################aaa"
    "aaa##########################################aaa"
    "aaa##########################################aaa"
    "aaa##########################################aaa"
    "aaa##########################################aaa"
    "aaa######ddddddddd###cccccccccccccccccc######aaa"
    "aaa######ddddddddd###cccccccccccccccccc######aaa"
    "aaa######ddddddddd###cccccccccccccccccc######aaa"
    "aaa##########################################aaa"
    "aaa##########################################aaa"
    "aaa##########################################aaa"
    "aaa######ddddddddd###cccccccccccccccccc######aaa"
    "aaa######ddddddddd###cccccccccccccccccc######aaa"
    "aaa######ddddddddd###cccccccccccccccccc######aaa"
    "aaa##########################################aaa"
    "aaa##########################################aaa"
    "aaa##########################################aaa"
    "aaa########################bbbbbbbbbbbb######aaa"
    "aaa########################bbbbbbbbbbbb######aaa"
    "aaa########################bbbbbbbbbbbb######aaa"
    "aaa##########################################aaa"
    "faao########################################Gaaf"
    "jaaqo######################################oqaaj"
    "haaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaah"
    "gEaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaasg"
    ".ghjfaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaafjBg."
    "................................................"
    "................................................"
    "................................................";

// Plain note: nothing special about this value.
inline constexpr std::uint32_t kInfoColors[] = {
    0x00000000, 0xFFF4F7FA, 0xFF5B6B7B, 0xFF1C4F94, 0xFC5B6B7B, 0x02808080, 0xFFF2F5F8, 0xFC5D6C7C,
    0x225A6978, 0xFD5B6B7B, 0xFF617080, 0xFFF0F4F7, 0xFFDFE4E9, 0xB15B6B7A, 0xE55B6B7A, 0xCD5B6B7B,
    0xE65B6C7B, 0xFFA7B1BA, 0x5A5B6C7A, 0x815B6B7B, 0x3E5A6B7B, 0xFFD1D8DD, 0xC8667483, 0xFFB2BAC3,
    0xBF5B6B7B, 0x4E5C6C7C, 0xFFE9EEF1, 0xF15B6B7B, 0xFFACB6BE, 0xFCABB3BD, 0x7A5C6B7B, 0xEA5C6B7B,
    0x1E5E6F77, 0xFF5E6E7E, 0xCA647383, 0xC6647583, 0x7C5A6B7B, 0xFFEBEEF2, 0xFFA9B2BB, 0xFFAEB7BF,
    0xFCA9B2BC, 0xC7647384, 0xF45B6B7B, 0xFDABB4BD, 0xB35B6B7B, 0xFB5C6D7D, 0xBD5A6B7B, 0xCE5C6A7B,
    0xC9657584, 0xCC5B6C7B, 0xE95B6B7B, 0xC05C6C7C, 0x405C6C7C, 0x585A6B7A, 0xB25C6B7B, 0x3D5C6D79,
    0x1F5A6B7B, 0x595C6A7B, 0x215D6C7C, 0xFFDFE3E8, 0xFF617180, 0xFFA8B2BB, 0xFFEFF3F6, 0xFF5E6D7D,
    0xFFA8B1BB, 0xFFADB7BF, 0xFFD1D7DD, 0xFFEAEEF1, 0x20586878, 0xC8657383, 0xC7647383, 0xF25B6B7B,
    0xBE5B6B7B, 0xF35B6B7B,
};
inline constexpr std::string_view kInfo1x =
    "................"
    "................"
    "..(Ufaaaaaafu2.."
    "..GPj######jB).."
    "..fj###bb###8f.."
    "..a####bb####a.."
    "..a##########a.."
    "..a###bbb####a.."
    "..a####bb####a.."
    "..a####bb####a.."
    "..a####bb####a.."
    "..fj##bbbb##8R.."
    "..uBj######jM*.."
    "..2NfaaaaaafHE.."
    "................";
inline constexpr std::string_view kInfo2x =
    "................................"
    "................................"
    "................................"
    "................................"
    "......YwOaaaaaaaaaaaaaaO,x......"
    ".....Ihaaaaaaaaaaaaaaaaaaar....."
    "....YhFLJ##############JvFhs...."
    "....XaL##################Aa,...."
    "....-aJ#######bbbb#######ya+...."
    "....aa########bbbb########aa...."
    "....aa########bbbb########aa...."
    "....aa########bbbb########aa...."
    "....aa####################aa...."
    "....aa####################aa...."
    "....aa######bbbbbb########aa...."
    "....aa######bbbbbb########aa...."
    "....aa########bbbb########aa...."
    "....aa########bbbb########aa...."
    "....aa########bbbb########aa...."
    "....aa########bbbb########aa...."
    "....aa########bbbb########aa...."
    "....aa########bbbb########aa...."
    "....aa######bbbbbbbb######aa...."
    "....+aJ#####bbbbbbbb#####yaz...."
    "....wav##################AaS...."
    "....xaF$&##############yA9h1...."
    ".....rhaaaaaaaaaaaaaaaaaahC....."
    "......sS-aaaaaaaaaaaaaa+S1......"
    "................................"
    "................................";
inline constexpr std::string_view kInfo3x =
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    ".........dqQocaaaaaaaaaaaaaaaaaaaacoQ3d........."
    "........gTaaaaaaaaaaaaaaaaaaaaaaaaaaaang........"
    ".......gWaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaDg......."
    "......dTaa6Kke####################ek7iaand......"
    "......qaa6t##########################tiaaZ......"
    "......QaaK############################paal......"
    "......oaak###########bbbbbb###########5aam......"
    "......caae###########bbbbbb###########eaac......"
    "......aaa############bbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa##############################aaa......"
    "......aaa##############################aaa......"
    "......aaa##############################aaa......"
    "......aaa#########bbbbbbbbb############aaa......"
    "......aaa#########bbbbbbbbb############aaa......"
    "......aaa#########bbbbbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa############bbbbbb############aaa......"
    "......aaa#########bbbbbbbbbbbb#########aaa......"
    "......caae########bbbbbbbbbbbb########eaac......"
    "......oaak########bbbbbbbbbbbb########5aam......"
    "......0aa7############################!aal......"
    "......3aai%##########################tiaaZ......"
    "......dnaaipke####################e5piaaVd......"
    ".......gDaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaW4......."
    "........gnaaaaaaaaaaaaaaaaaaaaaaaaaaaaV4........"
    ".........d3lmcaaaaaaaaaaaaaaaaaaaacmlZd........."
    "................................................"
    "................................................"
    "................................................";

// Padlock: cannot be changed.
inline constexpr std::uint32_t kLockedColors[] = {
    0x00000000, 0xFF2B3A4A, 0xFFB4C1CD, 0xFFE6ECF2, 0xE52B3A49, 0x04404040, 0x062B2B55, 0x762B3A49,
    0xFFE4EAF1, 0xD72B3A4A, 0xF92B3A4A, 0xFFDDE4EA, 0x562A3B4A, 0xCB2B3A4A, 0xD82B3A4A, 0x03555555,
    0xFFE4EAF0, 0xFF72808E, 0xFF959EA9, 0xFF4D5A69, 0x2E2C3748, 0xA42C3A4B, 0xFFCAD1D8, 0x8D2B3A4A,
    0xFFA6AFB8, 0xFF838E99, 0xFF65717E, 0xB62B394A, 0x1C2E3749, 0xFF3E4B5B, 0x3E293A4A, 0xFF596573,
    0xFFB1B9C3, 0xFFD3DBE1, 0xFF344252, 0xC12C3A4A, 0x10304050, 0xFF7A8591, 0xFF9FA7B1, 0x802C3A4A,
    0x362B394C, 0xFF475564, 0xFF53606D, 0xFF94A1AF, 0xFFB6BFC7, 0xF22B3A4A, 0x90334351, 0xDE2B394A,
    0xA92A394A, 0xFD414F5E, 0x872B3B4A, 0xB02B3A4A, 0xFF2F3F4E, 0xFF9AA4AD, 0xFFACB9C5, 0xFF384756,
    0xFFC5CDD5, 0x512C394C, 0xEA2B3A4A, 0x922C3A49, 0xFFB1BDCA, 0xFF7D8993, 0x0B2E2E46, 0x7B2C3A4B,
    0x8C334352, 0xE22B3A4A, 0xFF3F4E5D, 0xFFE1E8ED, 0xFF737F8B, 0xFF97A1AB, 0xFFB4BCC5, 0xFFD2D8DF,
    0xFF818B97, 0xFFB9C2CA, 0x3B2B3849, 0xFC2D3C4B, 0xF42B394A, 0x8A2B394A, 0x842B3A49, 0xDC2B3A4A,
    0xBE2B3A4A, 0xA62B3A4A, 0xB22B394A, 0x8E324253, 0x532B3A4A, 0x792A3B4A, 0x09393955, 0xFF2C3C4B,
    0xFF364554, 0xFF414F5D,
};
inline constexpr std::string_view kLocked1x =
    ".....C]cc]C....."
    "....9VwFFwV9...."
    ".../VF,BBxFVC..."
    "...]w,zAAzxwX..."
    "...cFBA..ABFc..."
    "...#b#....#b#..."
    "...#b#....#b#..."
    "..S|########|^.."
    "..:bbbbbbbbbb:.."
    "..#aaaaaaaaaa#.."
    "..#aaaa##aaaa#.."
    "..#aaaa##aaaa#.."
    "..#aaaa##aaaa#.."
    "..:0aaaaaaaa0:.."
    "..^:########:!..";
inline constexpr std::string_view kLocked2x =
    "...........ek[h;Rh[ke..........."
    ".........._T########>_.........."
    "........n<##rq2jj2qr##<n........"
    "........v#YZgbbbbbbg)Y#<........"
    "......._#YQb&qOGGO)&bQY#3......."
    "......e>#Zb+r######r+b)#Te......"
    "......k#rg&r#h3II3m#r&or#k......"
    "......[#qbq#hI....Im#)bq#t......"
    "......m#2bO#3......3#Ob2#h......"
    "......R#jbG#I......I#Gbj#R......"
    "......##bb##........##bb##......"
    "......##bb##........##bb##......"
    "......##bb##........##bb##......"
    "......##bb##........##bb##......"
    "....e<####################<e...."
    "....<######################W...."
    "....c#bbbbbbbbbbbbbbbbbbbb#c...."
    "....##bbbbbbbbbbbbbbbbbbbb##...."
    "....##aaaaaaaaaaaaaaaaaaaa##...."
    "....##aaaaaaaaaaaaaaaaaaaa##...."
    "....##aaaaaaaa####aaaaaaaa##...."
    "....##aaaaaaaa####aaaaaaaa##...."
    "....##aaaaaaaa####aaaaaaaa##...."
    "....##aaaaaaaa####aaaaaaaa##...."
    "....##aaaaaaaa####aaaaaaaa##...."
    "....##aaaaaaaa####aaaaaaaa##...."
    "....##aaaaaaaaaaaaaaaaaaaa##...."
    "....c#PaaaaaaaaaaaaaaaaaaP#c...."
    "....W######################W...."
    "....e<c##################cWe....";
inline constexpr std::string_view kLocked3x =
    "..................nCvHm;;hH<Cn.................."
    "................{`4##########4f{................"
    "...............kc##############$_..............."
    "..............L####~J*ujjuEJ%####5n............."
    "............nU###%KobbbbbbbboK%###Un............"
    "............W###yjbbbbbbbbbbbbjy###=............"
    "...........k###7gbbb*(NGGN(*bbbg7###_..........."
    "..........{$##ygbbuD########Dubbgy##c{.........."
    "..........`##%jbbQ}##########1-bbjB##f.........."
    ".........n4##Kbbu}##i5M88M5i##1ubbK##4n........."
    ".........C##~obbD##$s......sc##Dbbo%##/........."
    ".........v##Jbb*##is........si##*bbJ##<........."
    ".........H##Ebb(##5..........5##(bbE##@........."
    ".........m##ubbN##M..........M##Nbbu##m........."
    ".........R##jbbG##8..........8##Gbbj##R........."
    ".........###bbb###............###bbb###........."
    ".........###bbb###............###bbb###........."
    ".........###bbb###............###bbb###........."
    ".........###bbb###............###bbb###........."
    ".........###bbb###............###bbb###........."
    ".........###bbb###............###bbb###........."
    ".......df##############################fd......."
    "......dH################################Hd......"
    "......f##################################f......"
    "......l##bbbbbbbbbbbbbbbbbbbbbbbbbbbbbb##l......"
    "......i##bbbbbbbbbbbbbbbbbbbbbbbbbbbbbb##i......"
    "......###bbbbbbbbbbbbbbbbbbbbbbbbbbbbbb###......"
    "......###aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaa######aaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaa######aaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaa######aaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaa######aaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaa######aaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaa######aaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaa######aaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaa######aaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaa######aaaaaaaaaaaa###......"
    "......###aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa###......"
    "......i##6aaaaaaaaaaaaaaaaaaaaaaaaaaaa6##i......"
    "......l##p6aaaaaaaaaaaaaaaaaaaaaaaaaa6p##l......"
    "......f##################################f......"
    "......dH################################Hd......"
    ".......dfli##########################ilfd.......";

// Factory: the value it came with.
inline constexpr std::uint32_t kInitValueColors[] = {
    0x00000000, 0xFFCDB8EF, 0xFF43306B, 0xC343306B, 0xF943306B, 0xFFC6B1E8, 0xFFCCB7EE, 0x0D3B2762,
    0x4D422E6A, 0x8C432F6B, 0x8643306B, 0xE143306B, 0xF443306B, 0xFA43306B, 0xFB43306B, 0xF345326D,
    0xFF46336E, 0xFF816DA7, 0xFFA692CA, 0xFF63508A, 0x3045306A, 0xAB43306B, 0x6343316C, 0xFFB6A0D8,
    0xFF9784BC, 0xF45A4681, 0xFF715D97, 0x1D462C6A, 0x7343316A, 0xFF55437D, 0xFF8D78B1, 0xD04B3773,
    0x41432F6A, 0xD443306B, 0xB944306C, 0xFFBCA8DF, 0xA2442F6B, 0xF54C3772, 0x26432F6B, 0xFFAF9AD2,
    0xFF503D78, 0xFF5B4781, 0xF0483470, 0xFF6C5992, 0x06552B80, 0x8044306C, 0x7844316A, 0x2B412F6B,
    0xBF43306B, 0xDD43306B, 0xE543306B, 0x113C2D69, 0xFF493670, 0xFF9A86BE, 0xFF7E6AA4, 0xFF8F7BB3,
    0xFFB9A5DC, 0xFFC3AFE6, 0x4543306B, 0x1A45316C, 0x2440326A, 0x2944326A, 0x0B462E74, 0xFF57447E,
    0xFF65518B, 0xFFA893CB, 0xFFB7A2DA, 0xFFBEA8E0, 0xFFCAB5EC, 0xD643306B, 0xFE9884BC, 0x6346316C,
    0x01000000, 0xFF45326D, 0xFF513E78, 0xFF65528C, 0xFFB5A1D9,
};
inline constexpr std::string_view kInitValue1x =
    "................"
    ".naan..........."
    ".a##a..........."
    ".a##a..........."
    ".a##a...Xu...Xu."
    ".a##a.,+Oa.,+Oa."
    ".a##asDxLasDxLa."
    ".a##aJ*e#aJ*e#a."
    ".a##w3###w3###a."
    ".a############a."
    ".a##aa#aa#aa##a."
    ".a##aa#aa#aa##a."
    ".a############a."
    ".a############a."
    ".naaaaaaaaaaaan.";
inline constexpr std::string_view kInitValue2x =
    "................................"
    "................................"
    "..baaaaaab......................"
    "..aaaaaaaa......................"
    "..aa####aa......................"
    "..aa####aa......................"
    "..aa####aa......................"
    "..aa####aa......................"
    "..aa####aa......................"
    "..aa####aa.......4)b.......4)b.."
    "..aa####aa.....ztaaa.....ztaaa.."
    "..aa####aa...QSkaYaa...QSkaYaa.."
    "..aa####aa..EFaaPHaa..EFaaPHaa.."
    "..aa####aa5Iaa9q##aa5Iaa9q##aa.."
    "..aa####aakaYC(###aakaYC(###aa.."
    "..aa####aaay&#####aaay&#####aa.."
    "..aa####rN$#######rN$#######aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa####aaaa##aaaa##aaaa####aa.."
    "..aa####aaaa##aaaa##aaaa####aa.."
    "..aa####aaaa##aaaa##aaaa####aa.."
    "..aa####aaaa##aaaa##aaaa####aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aaaaaaaaaaaaaaaaaaaaaaaaaaaa.."
    "..baaaaaaaaaaaaaaaaaaaaaaaaaab..";
inline constexpr std::string_view kInitValue3x =
    "................................................"
    "................................................"
    "................................................"
    "...imaaaaaaaami................................."
    "...caaaaaaaaaac................................."
    "...aaaaaaaaaaaa................................."
    "...aaa######aaa................................."
    "...aaa######aaa................................."
    "...aaa######aaa................................."
    "...aaa######aaa................................."
    "...aaa######aaa................................."
    "...aaa######aaa................................."
    "...aaa######aaa................................."
    "...aaa######aaa............7A6............7A6..."
    "...aaa######aaa..........fhlaV..........fhlaV..."
    "...aaa######aaa.........gjaaaa.........gjaaaa..."
    "...aaa######aaa.......TUaaaaaa.......TUaaaaaa..."
    "...aaa######aaa.....fhlaaa/aaa.....fhlaaa/aaa..."
    "...aaa######aaa....gjaaa-0daaa....gjaaa-0daaa..."
    "...aaa######aaa..KGaaaa!v##aaa..KGaaaa!v##aaa..."
    "...aaa######aaa8RcaaaMZe###aaa8RcaaaMZe###aaa..."
    "...aaa######aaaWaaaopd#####aaaWaaaopd#####aaa..."
    "...aaa######aaaaaa:;#######aaaaaa:;#######aaa..."
    "...aaa######aaaaMZe########aaaaMZe########aaa..."
    "...aaa######Baopd##########Baopd##########aaa..."
    "...aaa######21%############21%############aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa######aaaaaa###aaaaaa###aaaaaa######aaa..."
    "...aaa######aaaaaa###aaaaaa###aaaaaa######aaa..."
    "...aaa######aaaaaa###aaaaaa###aaaaaa######aaa..."
    "...aaa######aaaaaa###aaaaaa###aaaaaa######aaa..."
    "...aaa######aaaaaa###aaaaaa###aaaaaa######aaa..."
    "...aaa######aaaaaa###aaaaaa###aaaaaa######aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa..."
    "...caaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaac..."
    "...imaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaami...";

// Pencil: changed and not yet written.
inline constexpr std::uint32_t kChangedColors[] = {
    0x00000000, 0xFF4F9DFA, 0xFF113A75, 0xFFE4EFFD, 0x02000080, 0xFFFFE6BF, 0x9E123A74, 0xFF4E9CF9,
    0x01000000, 0x9D103A75, 0xFF2A62AB, 0xFF4F9CF9, 0x97113975, 0xD3113A75, 0x160C3A74, 0xFF2960A7,
    0x150C3D79, 0xFF9BADC2, 0xFFA5CDFC, 0xFF6484B0, 0x51103974, 0xFFD1D0C9, 0xF2446796, 0xFF72B0FB,
    0xFF3F83D7, 0xFFC5DDFA, 0xFF2D5287, 0xFF809DC4, 0x35133A73, 0xFFB8C0C6, 0xFF679EE1, 0xFFE8DCC5,
    0x68113B76, 0xFFA9C4E7, 0xB4113A76, 0xFF1A4A8A, 0xFF5178A8, 0xE6113A76, 0xFF89ABD5, 0x86133D78,
    0xFFBBCAD6, 0xC3113A74, 0xFF7392B6, 0xFF406497, 0x27143B76, 0x420F3A74, 0xFD8CA1B9, 0xFF4A93ED,
    0xFF1F467E, 0xFF2C5793, 0xFF5BA4FA, 0xF4143F7B, 0xF530558B, 0xFFD0E3F8, 0xFF5D7CA6, 0xFFDBD6C9,
    0xFFA4B6C8, 0xA7113A76, 0xFFCBD0D1, 0xFF245191, 0xFF345A8E, 0xFF5C83B5, 0xFFDCEBFD, 0xD216407E,
    0x8E103975, 0xCC123A76, 0xF3113A74, 0xFFCBDCF1, 0xFF87A2C8, 0xFF214A85, 0xFF184380, 0xFFB1BDC7,
    0x0A1A3380, 0x2E113774, 0xFF91A4BB, 0xFF5777A2, 0xFF95AAC2, 0xFF9DB3C8, 0xFFEEDEC4, 0xA0153E7C,
    0x3D113B75, 0x0F113377, 0xFFD6D5CD, 0xFF549FF8, 0xFF6786AB, 0xFF6589B5, 0xFFFAE4C1, 0x4C113975,
    0xBE113A75, 0xFF204E8D,
};
inline constexpr std::string_view kChanged1x =
    "................"
    "..........A>A..."
    ".........RYFYR.."
    "........RYZbZYA."
    ".......RXC8bbF>."
    "......RXw#v8ZYA."
    ".....@Xw###CYR.."
    "....@Xw###wXR..."
    "...@Xw###wXR...."
    "..@Xw###wXR....."
    ".,Xw###wXR......"
    ".RuM##wXR......."
    ".LSdMwXR........"
    ".9/SuXR........."
    ".J9LR,..........";
inline constexpr std::string_view kChanged2x =
    "................................"
    "................................"
    ".....................c--c......."
    "....................o}aa}o......"
    "...................mlarralm....."
    "..................mlazbb(alm...."
    ".................mlazbbbb(alo..."
    "................mlazbbbbbb(a}g.."
    "...............mla5xbbbbbbbra-.."
    "..............mlaHTWxbbbbbbra-.."
    ".............mlaHT##Wxbbbbza}g.."
    "............mlaHT####Wxbbzalo..."
    "...........olaHT######Wxzalm...."
    "..........olaHT#######T5alm....."
    ".........olaHT#######THalm......"
    "........olaHT#######THalm......."
    ".......olaHT#######THalm........"
    "......olaHT#######THalm........."
    ".....olaHT#######THalm.........."
    "....olaHT#######THalm..........."
    "....$aHT#######THalm............"
    "...Qa*T#######THalm............."
    "...EaI4^#####THalm.............."
    "...3a;d4^###THalm..............."
    "...Jatdd4^#THalm................"
    "..Qa){ddd4THalm................."
    "..Ea_d{1pI*alm.................."
    "..3a0_)aaaa$m..................."
    "..JaaaaJ3EQ....................."
    "..NJ3EQ.........................";
inline constexpr std::string_view kChanged3x =
    "................................................"
    "................................................"
    "................................................"
    "................................................"
    "................................sGJGs..........."
    "..............................c!aaaaa!c........."
    ".............................chaaU:Uaahc........"
    "............................chaay&b&yaahc......."
    "...........................gkaay&bbb&yaaec......"
    "..........................gkaay&bbbbb&yaaec....."
    ".........................chaay&bbbbbbb&yaa!....."
    "........................chaay&bbbbbbbbb&yaas...."
    ".......................chaaaKbbbbbbbbbbb&UaG...."
    "......................chaaanjqbbbbbbbbbbb:aJ...."
    ".....................chaaanf##qbbbbbbbbb&UaG...."
    "....................chaaanf####qbbbbbbb&yaa|...."
    "...................chaaanf######qbbbbb&yaa!....."
    "..................gkaaanf########qbbb&yaaec....."
    ".................gkaaanf##########qb&yaaec......"
    "................gkaaanf############Kyaaec......."
    "...............gkaaanf###########jiaaaec........"
    "..............gkaaanf###########jiaaaec........."
    ".............gkaaanf###########jiaaaec.........."
    "............gkaaanf###########jiaaaec..........."
    "...........gkaaanf###########jiaaaec............"
    "..........gkaaanf###########jiaaaec............."
    ".........gkaaanf###########jiaaaec.............."
    "........gkaaanf###########jiaaaec..............."
    ".......gkaaanf###########jiaaaec................"
    "......gkaaanf###########jiaaaec................."
    "......!aaanf###########fnaaahc.................."
    ".....[aaanf###########fnaaahc..................."
    ".....|aa~^###########fnaaahc...................."
    ".....!aa7]W#########jiaaaec....................."
    ".....$aa<d]W#######jiaaaec......................"
    "....[aaa]dd]W#####jiaaaec......................."
    "....|aaV{ddd]W###jiaaaec........................"
    "....!aaOddddd]W#jiaaaec........................."
    "....$aa+dddddd]Wiaaaec.........................."
    "...[aaaDdddd12`~aaahc..........................."
    "...|aaPd=BOVaaaaaahc............................"
    "...!aa6Paaaaaaaaakc............................."
    "...$aaaaaaaaa$!|[..............................."
    "...%aaaaa$!|[..................................."
    "...L%$!|[.......................................";

// Trend, first phase: the value is live.
inline constexpr std::uint32_t kDynamic1Colors[] = {
    0x00000000, 0xFFF5FBF6, 0xFF1F7A38, 0xFF1F8A3B, 0xFFF4FBF5, 0xFF218B3D, 0xFF208A3C, 0xFFF0F8F1,
    0x02008000, 0xFC1F7A38, 0xFFF2F9F4, 0xFC217B3B, 0xFFF3FAF4, 0x221E7835, 0xFD1F7A38, 0xFF277F3F,
    0xFF459E5C, 0xFF9BCCA8, 0x81207B37, 0xC82D8244, 0xFFC5DECC, 0xFF71B583, 0x4E1D7938, 0xFF5BAA6F,
    0xFFB0D6BA, 0xFF86C096, 0xFFDAECDE, 0xFF33954C, 0xE51F7A38, 0xB1207A38, 0xCE1F7B38, 0x3E217B3A,
    0xBE1F7A38, 0xFF93C09F, 0xFF65AF78, 0xFFE6F3E9, 0xFFBADBC2, 0xFF4FA365, 0xFF7BBA8B, 0xFFA5D1AF,
    0x5A1F7A39, 0xFFCEE6D4, 0xFF2A9044, 0xFF3C9954, 0xF11F7A38, 0xFC8CBB99, 0xFF92C79F, 0xFFD4EAD8,
    0xFF8CC49A, 0xFFAAD3B5, 0xFFC8E4CF, 0x7A1F7938, 0xFFB5D9BF, 0xFFBFDEC6, 0xFF6CB37F, 0xFF76B887,
    0xFFEBF5EC, 0xFF4AA060, 0xFF60AC73, 0xFF98C4A4, 0xFF54A66A, 0xFFDFEFE3, 0xFD90BD9B, 0xEA1F7A38,
    0xFF379750, 0xFF268E41, 0xFF419C5A, 0xFF7FBD8F, 0xFF83BF92, 0xFF96C9A3, 0xFF9FCEAB, 0x1E22773C,
    0xFF8ABB97, 0xFFD5EBDB, 0xFF309349, 0xFFCBE5D2, 0xFF247D3C, 0xFF2D9247, 0xFFE2F0E5, 0xFF6AB27C,
    0xFF8FC59C, 0xFFC2E0CA, 0xFF3F9A57, 0xFF89C298, 0xFFA2D0AD, 0xFFA7D1B2, 0xFFADD5B8, 0xFFB3D8BC,
    0xF41F7A38, 0xB31F7B38,
};
inline constexpr std::string_view kDynamic11x =
    "................"
    "lrjaaaaaaaaaajr+"
    "r8f#-w2######fRr"
    "jf#pdbzy######fj"
    "a#Tdd3b6#######a"
    "a#1b12/b[######a"
    "afOe-#xbK###H)Ha"
    "aZbo##:b!c##(b)a"
    "a)b(##c!b:##obZa"
    "aH)H###Kbx#-eOfa"
    "a######[b/21b1#a"
    "a#######6b3ddT#a"
    "jf######yzbdp#fj"
    "rRf######2w-#fRr"
    "+rjaaaaaaaaaajr+";
inline constexpr std::string_view kDynamic12x =
    "................................"
    "................................"
    "..DE}aaaaaaaaaaaaaaaaaaaaaa}Eu.."
    ".Xmaaaaaaaaaaaaaaaaaaaaaaaaaaaq."
    "Dm;FH######################H5;mD"
    "EaF#####[>ovVk###############FaE"
    "}aH####@dbbbb4f##############HaQ"
    "aa####Lbbbbbbbt###############aa"
    "aa###7ObbbbbbbbY##############aa"
    "aa###(bbbO|%bbbok#############aa"
    "aa##2<bbbp#NdbbbY#############aa"
    "aa##pbbbzf##0bbb4#############aa"
    "aa##3bbbU###:bbb$2############aa"
    "aa#=dbbd=####]bbbw#######YzzY#aa"
    "aa#`bbbJ#####&bbb0######izbb!#aa"
    "aa#>bbb^#####Zbbb/i#####Wbbbz#aa"
    "aa#zbbbW#####i/bbbZ#####^bbb>#aa"
    "aa#!bbzi######0bbb&#####Jbbb`#aa"
    "aa#YzzY#######wbbb]####=dbbd=#aa"
    "aa############2$bbbW###)bbb3##aa"
    "aa#############4bbb0##fPbbb)##aa"
    "aa#############YbbbdN#pbbb$H##aa"
    "aa#############kobbb%wObbb1###aa"
    "aa##############YbbbbbbbbO7###aa"
    "aa###############tbbbbbbbL####aa"
    "QaH##############fGbbbbd@####HaQ"
    "Ea5###############kVvo>[#####FaE"
    "ua;FH######################HF;mD"
    ".qmaaaaaaaaaaaaaaaaaaaaaaaaaamX."
    "..DE}aaaaaaaaaaaaaaaaaaaaaaQED..";
inline constexpr std::string_view kDynamic13x =
    "................................................"
    "................................................"
    "................................................"
    "...gM~AhaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaahA~Mg..."
    "..lCaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaCl.."
    ".l9aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa9l."
    "gCaan,yi################################i-,naaCg"
    "Maans#########2ZN2#########################snaaM"
    "~aa,########:6dbbe>T########################,aaB"
    "Aaay#######Sdbbbbbb$w#######################-aaA"
    "haai######)bbbbbbbbbdV######################iaah"
    "aaa######ZebbbbbbbbbbOT######################aaa"
    "aaa#####2Pbbbbbbbbbbbb3c#####################aaa"
    "aaa#####^bbbbbbzObbbbbbV#####################aaa"
    "aaa####HObbbbb!7NObbbbbPi####################aaa"
    "aaa####UbbbbbeI##*bbbbbb{####################aaa"
    "aaa###k!bbbbb4###kobbbbb6####################aaa"
    "aaa###Ibbbbbb:####{bbbbbb-###################aaa"
    "aaa###0bbbbbJ#####i!bbbbbU###################aaa"
    "aaa##f<bbbbbL######^bbbbb%############cYSYc##aaa"
    "aaa##Ibbbbb$2######Tbbbbbb-##########cGbbbGc#aaa"
    "aaa##Kbbbbb4########obbbbbp##########YbbbbbY#aaa"
    "aaa##obbbbb_########(bbbbb4##########1bbbbbS#aaa"
    "aaa#=ebbbbb7########ZbbbbbOf#########]bbbbb{#aaa"
    "aaa#{bbbbb]#########fObbbbbZ########7bbbbbe=#aaa"
    "aaa#Sbbbbb1##########4bbbbb(########_bbbbbo##aaa"
    "aaa#YbbbbbY##########pbbbbbo########4bbbbbK##aaa"
    "aaa#cGbbbGc##########-bbbbbbT######2$bbbbbI##aaa"
    "aaa##cYSYc############%bbbbb^######_bbbbb<f##aaa"
    "aaa###################Ubbbbb!i#####Jbbbbb0###aaa"
    "aaa###################Tbbbbbb{####WbbbbbbI###aaa"
    "aaa####################6bbbbboi###4bbbbbPk###aaa"
    "aaa####################{bbbbbb*##Iebbbbb@####aaa"
    "aaa####################iPbbbbbON7!bbbbb<H####aaa"
    "aaa#####################VbbbbbbOzbbbbbb^#####aaa"
    "aaa#####################c3bbbbbbbbbbbbP2#####aaa"
    "aaa######################TObbbbbbbbbbeZ######aaa"
    "haai######################Vdbbbbbbbbb)######iaah"
    "Aaay#######################w$bbbbbbdS#######-aaA"
    "Baa,########################->dbbd6:########,aaB"
    "Maans#########################2NZ2#########snaaM"
    "gCaan,-i################################i-,naaCg"
    ".l9aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa9l."
    "..lCaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaCl.."
    "...gMBAhaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaahABMg...";

// Trend, second phase: the value is live.
inline constexpr std::uint32_t kDynamic2Colors[] = {
    0x00000000, 0xFFF5FBF6, 0xFF1F7A38, 0xFF1F8A3B, 0xFF218B3D, 0xFFF4FBF5, 0xFFF0F8F1, 0x02008000,
    0xFC1F7A38, 0xFF208A3C, 0xFFF2F9F4, 0xFC217B3B, 0xFFF2FAF4, 0x221E7835, 0xFD1F7A38, 0xFF277F3F,
    0xFF379750, 0xFF93C09F, 0x81207B37, 0xC72D8144, 0xFF65AF78, 0xFFC2E0CA, 0x4E1D7938, 0xFF7CBA8C,
    0xFFAAD3B4, 0xFFD8EADC, 0xFF4DA263, 0xE51F7A38, 0xCE1F7B38, 0xB1207A38, 0x3E217B3A, 0xBE1F7A38,
    0xFFB6DABF, 0xFF9BCCA8, 0xFFE4F1E7, 0xFF2C9146, 0xFFCDE6D3, 0xFF429C5A, 0xFF5AAA6F, 0xFF71B583,
    0xFF89C298, 0x5A1F7A39, 0xFC8CBB99, 0xF11F7A38, 0xFF92C79F, 0xFFA2D0AD, 0xFFEAF5ED, 0xFF53A569,
    0xFFDEEFE2, 0xFF83BF92, 0xFFB0D6BA, 0x7A1F7938, 0xFF32954C, 0xFF268E41, 0xFF60AC73, 0xFF6AB27D,
    0xFF76B887, 0xFF98C4A4, 0xFFBBDCC2, 0xFF3C9954, 0xFFD2E9D7, 0xFD90BD9B, 0xEA1F7A38, 0xFF96C9A3,
    0xFFBFDEC6, 0xFFC6E2CD, 0x1E22773C, 0xFF49A05F, 0xFF8EC59B, 0xFFA6D1B1, 0xFF8ABB97, 0xCA2C8244,
    0xFF459E5C, 0xFFD5EBDB, 0xFF309349, 0xFF247D3C, 0xFF299045, 0xFFACD5B7, 0xFFC5DECC, 0xFF3F9A57,
    0xFF6EB581, 0xFF79B989, 0xFF7FBD8F, 0xFF9FCEAB, 0xFFC9E4D0, 0xFF50A466, 0xFF85C095, 0xFFE7F2EA,
    0xF41F7A38, 0xB31F7B38,
};
inline constexpr std::string_view kDynamic21x =
    "................"
    "l+jaaaaaaaaaajr%"
    "+7e######SW-#eOr"
    "je######xYbcF#ej"
    "a#######Tb&cc6#a"
    "a######tb/S2b2#a"
    "a|9|###[b{#-h;ea"
    "a9bV##dobI##,b!a"
    "a!b,##Ibod##Vb9a"
    "ae;h-#{b[###|9|a"
    "a#2b2S/bt######a"
    "a#6cc&bT#######a"
    "je#FcbYx######ej"
    "rOe#-WS######eOr"
    "%rjaaaaaaaaaajr%";
inline constexpr std::string_view kDynamic22x =
    "................................"
    "................................"
    "..CD}aaaaaaaaaaaaaaaaaaaaaa}Du.."
    ".Xmaaaaaaaaaaaaaaaaaaaaaaaaaaaq."
    "Cm:p|######################|3:mC"
    "Dap###############dwK,1t#####paD"
    "}a|##############e0bbbbc(####|aP"
    "aa###############LbbbbbbbR####aa"
    "aa##############Ebbbbbbbb;U###aa"
    "aa#############dJbbbJW;bbbV###aa"
    "aa#############EbbbcI#FbbbHS##aa"
    "aa#############0bbb@##eYbbbF##aa"
    "aa############SZbbb_###(bbb&##aa"
    "aa#EooE#######Wbbb>####GcbbcG#aa"
    "aa#obbYk######@bbb]#####ybbb)#aa"
    "aa#Ybbb$#####k/bbbt#####Mbbb1#aa"
    "aa#1bbbM#####tbbb/k#####$bbbY#aa"
    "aa#)bbby#####]bbb@######kYbbo#aa"
    "aa#GcbbcG####>bbbW#######EooE#aa"
    "aa##ybbb9###_bbbZS############aa"
    "aa##9bbb5i##1bbb0#############aa"
    "aa##GZbbbF#IcbbbE#############aa"
    "aa###[bbb;WJbbb,d#############aa"
    "aa###U;bbbbbbbbE##############aa"
    "aa####)bbbbbbbL###############aa"
    "Pa|####Qcbbbbse##############|aP"
    "Da3#####t1,Kwd###############paD"
    "ua:p|######################|p:mC"
    ".qmaaaaaaaaaaaaaaaaaaaaaaaaaamX."
    "..CD}aaaaaaaaaaaaaaaaaaaaaaPDC..";
inline constexpr std::string_view kDynamic23x =
    "................................................"
    "................................................"
    "................................................"
    "...fN~zgaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaagz~Nf..."
    "..lAaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaAl.."
    ".l8aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa8l."
    "fAaan*xi################################ix*naaAf"
    "Naan=#########################SI!S#########=naaN"
    "~aa*########################-1cbbcTI########*aaB"
    "zaax#######################WZbbbbbbcQ#######xaaz"
    "gaai######################wcbbbbbbbbb9######iaag"
    "aaa######################-;bbbbbbbbbbh!######aaa"
    "aaa#####################dybbbbbbbbbbbb5S#####aaa"
    "aaa#####################wbbbbbbHobbbbbbM#####aaa"
    "aaa####################iobbbbb;IUobbbbbHS####aaa"
    "aaa####################<bbbbbb^##4hbbbbb(####aaa"
    "aaa####################`bbbbb,k###0bbbbbok###aaa"
    "aaa###################-bbbbbbW####_bbbbbb4###aaa"
    "aaa###################Mbbbbboi#####`bbbbb1###aaa"
    "aaa##dEQEd############JbbbbbM######RbbbbbHe##aaa"
    "aaa#dsbbbsd##########-bbbbbb6######SZbbbbb4##aaa"
    "aaa#EbbbbbE##########Fbbbbb,########0bbbbbv##aaa"
    "aaa#Qbbbbb2##########0bbbbb{########Rbbbbb,##aaa"
    "aaa#<bbbbb>#########e;bbbbb!########UbbbbbhG#aaa"
    "aaa#GhbbbbbU########!bbbbb;e#########>bbbbb<#aaa"
    "aaa##,bbbbbR########Vbbbbb0##########2bbbbbQ#aaa"
    "aaa##vbbbbb0########,bbbbbF##########EbbbbbE#aaa"
    "aaa##4bbbbbZS######6bbbbbbx##########dsbbbsd#aaa"
    "aaa##eHbbbbbR######MbbbbbJ############dEQEd##aaa"
    "aaa###1bbbbb`#####eobbbbb(###################aaa"
    "aaa###4bbbbbb_####<bbbbbb-###################aaa"
    "aaa###d5bbbbb0###k,bbbbbT####################aaa"
    "aaa####(bbbbbh4##^bbbbbbW####################aaa"
    "aaa####SHbbbbboUI;bbbbb5i####################aaa"
    "aaa#####MbbbbbbYHbbbbbbw#####################aaa"
    "aaa#####S5bbbbbbbbbbbbyd#####################aaa"
    "aaa######!hbbbbbbbbbb;-######################aaa"
    "gaai######9bbbbbbbbbc<######################iaag"
    "zaax#######QcbbbbbbZW#######################xaaz"
    "Baa*########ITcbbc1-########################*aaB"
    "Naan=#########S!IS#########################=naaN"
    "fAaan*xi################################ix*naaAf"
    ".l8aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa8l."
    "..lAaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaAl.."
    "...fNBzgaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaagzBNf...";

// Broken line: live, but not connected.
inline constexpr std::uint32_t kDynamicOfflineColors[] = {
    0x00000000, 0xFFE3E8ED, 0xFF5B6B7B, 0xFF22303C, 0xFF25323E, 0xFF273541, 0xFFA0A8AF, 0xFFACB4BA,
    0xFFA8B0B7, 0xFFADB4BC, 0xFF263441, 0xFF283541, 0xFF919AA2, 0xFF25333F, 0xFF9DA5AD, 0xFF24323E,
    0xFC5B6B7B, 0x7C5A6B7B, 0xC8657382, 0x3E5A6B7B, 0xFFC4CCD3, 0x1F5A6B7B, 0x5A5B6C7A, 0xB15B6B7A,
    0xE55B6B7A, 0xFFD6DCE1, 0xCD5B6B7B, 0xBF5B6B7B, 0x4E5C6C7C, 0xFCA2ABB6, 0xF15B6B7B, 0xFF2D3B46,
    0xFFC0C7CD, 0xFFD0D6DD, 0xFF606F7F, 0xFF969EA6, 0xFFDBE0E6, 0xFFA3AEB7, 0xFF9FA9B4, 0xFFA8B2BC,
    0xFFDFE5E9, 0xEA5C6B7B, 0xFFA2ABB2, 0x815B6B7B, 0xFB5C6D7D, 0x7A5C6B7B, 0x225A6978, 0xFFE1E6EB,
    0xFF5E6E7E, 0xFFD9E0E5, 0xFFA1AAB5, 0xFFA5AFB8, 0xCA647382, 0xC7637383, 0xF45B6B7B, 0xFDA2ACB6,
    0xB35B6B7B, 0xFC5D6C7C, 0xBD5A6B7B, 0xCE5C6A7B, 0xC6647482, 0xE65B6C7B, 0xCC5B6C7B, 0xC9647383,
    0xE95B6B7B, 0xC8637382, 0xC05C6C7C, 0x405C6C7C, 0x585A6B7A, 0xB25C6B7B, 0x3D5C6D79, 0x1E5E6F77,
    0x595C6A7B, 0x215D6C7C, 0x02808080, 0xFFE0E6EA, 0xFFA1AAB1, 0xFF23313D, 0xFFC1C7CE, 0xFFD1D7DD,
    0xFF2C3A46, 0xFF60707F, 0xFF9099A1, 0xFFA0AAB5, 0xFFD0D7DD, 0xFF5E6D7D, 0xFF9FAAB4, 0xFFA4AFB8,
    0xFFC4CBD3, 0xFFDAE0E5,
};
inline constexpr std::string_view kDynamicOffline1x =
    "................"
    "t9oaaaaaaaaaaoqt"
    "Y1:##########:B$"
    "3:############M3"
    "a####=####=####a"
    "a###Enk##knE###a"
    "a####Hn]Hnk####a"
    "a#aa##k<<k##aa#a"
    "a#aa##k<<k##aa#a"
    "a####HnkHn]####a"
    "a###Enk##knE###a"
    "a####=####=####a"
    "3:############MQ"
    "qB:##########:BZ"
    "tZ3aaaaaaaaaa36+";
inline constexpr std::string_view kDynamicOffline2x =
    "................................"
    "................................"
    "..&z0aaaaaaaaaaaaaaaaaaaaaa0zA.."
    ".poaaaaaaaaaaaaaaaaaaaaaaaaaaaP."
    "&oUXI######################ILUor"
    "%aX##########################Jaz"
    "0aI##########################VaC"
    "aa############################aa"
    "aa############################aa"
    "aa########ee########ee########aa"
    "aa#######ecce######ecce#######aa"
    "aa#######ecbce####ecbce#######aa"
    "aa########Olbcm##;lbcm########aa"
    "aa#########Olbcm;lbcm#########aa"
    "aa##aaaa####ecbccbce####aaaa##aa"
    "aa##aaaa#####ecbbce#####aaaa##aa"
    "aa##aaaa#####;lbbcm#####aaaa##aa"
    "aa##aaaa####ecbccbce####aaaa##aa"
    "aa#########;lbcmOlbcm#########aa"
    "aa########;lbcm##Olbcm########aa"
    "aa#######ecbce####ecbce#######aa"
    "aa#######ecce######ecce#######aa"
    "aa########ee########ee########aa"
    "aa############################aa"
    "aa############################aa"
    "CaI##########################VaC"
    "zaL##########################Ja4"
    "AaU|~######################VJ`o*"
    ".PoaaaaaaaaaaaaaaaaaaaaaaaaaaoR."
    "..r40aaaaaaaaaaaaaaaaaaaaaaC4*..";
inline constexpr std::string_view kDynamicOffline3x =
    "................................................"
    "................................................"
    "................................................"
    ".../u27oaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaao72,/..."
    "..S5aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaayS.."
    ".S!aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaNS."
    "/5aa[W>T################################T_^Gaay/"
    "uaa[s######################################sGaa("
    "2aaW########################################Kaav"
    "7aa>########################################Faaw"
    "oaaT########################################Taao"
    "aaa##########################################aaa"
    "aaa##########################################aaa"
    "aaa#############x##############x#############aaa"
    "aaa############h@g############h@g############aaa"
    "aaa###########fdbdf##########fdbdf###########aaa"
    "aaa##########xDbbbdf########fdbbbDx##########aaa"
    "aaa###########fdbbbdf######fdbbbdf###########aaa"
    "aaa############hjbbbig####hjbbbig############aaa"
    "aaa#############hjbbbig##hjbbbig#############aaa"
    "aaa##############hjbbbighjbbbig##############aaa"
    "aaa###aaaaaa######fdbbbddbbbdf######aaaaaa###aaa"
    "aaa###aaaaaa#######hjbbbbbbig#######aaaaaa###aaa"
    "aaa###aaaaaa########fdbbbbdf########aaaaaa###aaa"
    "aaa###aaaaaa########hjbbbbig########aaaaaa###aaa"
    "aaa###aaaaaa#######hjbbbbbbig#######aaaaaa###aaa"
    "aaa###aaaaaa######fdbbbddbbbdf######aaaaaa###aaa"
    "aaa##############hjbbbighjbbbig##############aaa"
    "aaa#############hjbbbig##hjbbbig#############aaa"
    "aaa############hjbbbig####hjbbbig############aaa"
    "aaa###########fdbbbdf######fdbbbdf###########aaa"
    "aaa##########xDbbbdf########fdbbbDx##########aaa"
    "aaa###########fdbdf##########fdbdf###########aaa"
    "aaa############hDg############hDg############aaa"
    "aaa#############x##############x#############aaa"
    "aaa##########################################aaa"
    "aaa##########################################aaa"
    "oaaT########################################Taao"
    "7aa>########################################Faaw"
    ")aa^########################################{aav"
    ",aaG}######################################sGaa("
    "/yaaGK_T################################TFKGaa8/"
    ".SNaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa!-."
    "..Syaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa8-.."
    ".../,vwoaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaowv(/...";

// Star of a required field.
inline constexpr std::uint32_t kNeededColors[] = {
    0x00000000, 0xFF3CCF68, 0xFF0D4F22, 0x470E4F20, 0x07004924, 0xD00D4E22, 0xFF105827, 0xFF39C663,
    0xF30D4F22, 0xFF0D5022, 0xFF2EA853, 0x1C095224, 0xFF15632E, 0x03005500, 0x05006633, 0x580C4E23,
    0x870D4F22, 0xAB0D4F22, 0xFF21843F, 0x710E4F22, 0xFF279649, 0xE20E4F22, 0xFF1B7537, 0xFF33B85B,
    0xB80C4F23, 0x640D4F21, 0xC30D4E22, 0x910C4F21, 0x7C0C4E23, 0x260D5122, 0x110F4B1E, 0xA20D4F23,
    0x3E0C4E21, 0xFF2A9E4D, 0x4F0D4D24, 0xFF258F45, 0xFF31B158, 0xFF166A31, 0xE90E5124, 0xB20D4F22,
    0xDB0D4F22, 0xFF1D7B3A, 0xFF36BE5F, 0xCA0D5022, 0xF90D4F22, 0xED0D4F22, 0x770D4F22, 0xFF125E2B,
    0xFF196F33, 0xFF2BA350, 0x210F4D1F, 0x830E5021, 0x430B5022, 0x0D144E27, 0xFF3ACB65, 0xFF1E7F3C,
    0xFF2FAD56, 0xFF37C260, 0x6D0E5023, 0x8B0D4F23, 0x4B0E4E22, 0x800E5022, 0xE50D4F23, 0xFF0F5525,
    0xFF125B29, 0xFF218740, 0xFF269347, 0x0A1A4D1A, 0xF50C4F22, 0xAE0D4F22, 0xFC0D4F22, 0xDE0D4F22,
    0x750D4E23, 0x1A0A4E1D, 0x1F105221, 0xFF3BCC67, 0xFF13612C, 0x4D0D4F21, 0xFF0E5223, 0xFF16682F,
    0xFF259146, 0xFF29984A, 0xFF32B358, 0xFF39C864, 0xFF20823E, 0xFF37C060, 0xC80D4F22, 0xF10D4F22,
    0x230F5024, 0xCF0E4F22,
};
inline constexpr std::string_view kNeeded1x =
    "................"
    "......6886......"
    "......8II8......"
    "../r6.a##a.6r/.."
    ".CKq>ya##ay>qKC."
    ".YU##F!##!F##UY."
    ".CK%:#^##^#:%KC."
    "..WL;i####i;LW.."
    "..WL;i####i;LW.."
    ".CK%:#^##^#:%KC."
    ".YU##F!##!F##UY."
    ".CKq>ya##ay>qKC."
    "../r6.a##a.6r/.."
    "......8II8......"
    "......6886......";
inline constexpr std::string_view kNeeded2x =
    "................................"
    "................................"
    ".............B)gg)B............."
    "............BRaaaaRB............"
    "............)au33ua)............"
    "............|a3##3a|............"
    "............aa####aa............"
    "....mA+*dxl.aa####aa.lxd*+Am...."
    "....)aaaaa~Eaa####aaE~aaaaa)...."
    "...bae20VTaaaa####aaaaTV02eab..."
    "...5aH###0@9aa####aa9@0###Ha5..."
    "...5aH#####3Nh####hN3#####Ha5..."
    "...baeI######I####I######Ieab..."
    "....)ah13##############31ha)...."
    "....mX(a9%:##########:%9a(Xm...."
    "......W)aa;i########i;aa)W......"
    "......jDaa;V########2kaaL}......"
    "....mX(a9%:##########:%9a(Xm...."
    "....)ah13##############31ha)...."
    "...baeI######I####I######Ieab..."
    "...5aH#####3Nh####hN3#####Ha5..."
    "...5aH###0@9aa####aa9@0###Ha5..."
    "...bae20VTaaaa####aaaaTV02eab..."
    "....)aaaaa~Eaa####aaE~aaaaa)...."
    "....mA+*dxl.aa####aa.lxd*+Am...."
    "............aa####aa............"
    "............|a3##3a|............"
    "............)au33ua)............"
    "............BRaaaaRB............"
    ".............B)gg)B.............";
inline constexpr std::string_view kNeeded3x =
    "................................................"
    "................................................"
    "................................................"
    "....................c4{(({4c...................."
    "...................-daaaaaad-..................."
    "..................cdaaaaaaaadc.................."
    "..................4aa=sffs=aa4.................."
    "..................{aas####saa{.................."
    "..................(aaf####faa(.................."
    "..................aaa######aaa.................."
    "........lYr,G&....aaa######aaa....&G,rYl........"
    ".......b+aaaaRSc..aaa######aaa..cSRaaaa+b......."
    "......n*aaaaaaaM<.aaa######aaa.<Maaaaaaa*n......"
    ".....jgaaeq$;aaaawaaa######aaawaaaa;$qeaagj....."
    ".....oaakf##:[eaaaaaa######aaaaaae[:##fkaao....."
    ".....Paai#####fqaaaaa######aaaaaqf#####iaaP....."
    ".....taaO#######vUaaa######aaaUv#######Oaat....."
    ".....Paai#########VTa######aTV#########iaaP....."
    ".....oaakf#########0H######H0#########fkaao....."
    ".....jgaa!F##########################F!aagj....."
    "......n*aaaJ]######################]Jaaa*n......"
    ".......btaaahN`##################3_aaaatb......."
    "........&Sgaaa9%0##############0%9aaa(oZ........"
    "........../paaaa;i############i;aaaap/.........."
    "..........jDaaaa;V############2kaaaaLW.........."
    "........&7(aaa9%0##############0%9aaaQzZ........"
    ".......btaaahN`##################3_aaaatb......."
    "......n*aaaJ]######################]Jaaa*n......"
    ".....jgaa!F##########################F!aagj....."
    ".....oaakf#########0H######H0#########fkaao....."
    ".....Paai#########VTa######aTV#########iaaP....."
    ".....taaO#######vUaaa######aaaUv#######Oaat....."
    ".....Paai#####fqaaaaa######aaaaaqf#####iaaP....."
    ".....oaakf##:[eaaaaaa######aaaaaae[:##fkaao....."
    ".....jgaaeq$;aaaawaaa######aaawaaaa;$qeaagj....."
    "......n*aaaaaaaM<.aaa######aaa.<Maaaaaaa*n......"
    ".......b+aaaaRSc..aaa######aaa..cSRaaaa+b......."
    "........lYr,G&....aaa######aaa....&G,rYl........"
    "..................aaa######aaa.................."
    "..................gaaf####faag.................."
    "..................{aas####saa{.................."
    "..................4aa=sffs=aa4.................."
    "..................cdaaaaaaaadc.................."
    "...................-daaaaaad-..................."
    "....................c4{(({4c....................";

// Crossed disc: failure.
inline constexpr std::uint32_t kErrorColors[] = {
    0x00000000, 0xFFE83A37, 0xFFFFFFFF, 0xFF7D0F12, 0xFFE93F3C, 0xFFFFFCFC, 0xFFF07D7B, 0xFFF8C7C6,
    0xFFE9403D, 0xFFF8C4C3, 0xFFF9C8C7, 0xFFEA4B48, 0xFFE73A37, 0xFFFBDDDC, 0x01000000, 0xFFE33835,
    0xFFFFFDFD, 0x817D1012, 0x417E1014, 0xBF7D0F11, 0xF8AA2121, 0xFFF39B9A, 0xFFC52C2B, 0x217C0F0F,
    0xDE831115, 0x9A7C0F12, 0x567D0F12, 0xFF991A1B, 0xAD7D0F12, 0xED7D0F12, 0xFFD43230, 0x317D1010,
    0xFF8B1517, 0xCF7C0F12, 0x8D7D0E12, 0x14800D0D, 0xFFB92827, 0xF5851215, 0xFFA31E1F, 0xB77D0F12,
    0xD87D0F12, 0xC77E0F12, 0xF87D0F13, 0x09711C1C, 0xFFF7BDBC, 0x387B0E12, 0xFFAC2122, 0x88801113,
    0xFF851315, 0xFFBF2A29, 0xFFCE302E, 0x277C0D14, 0xB27D0E13, 0xFF9E1C1D, 0x2C801111, 0xF3811114,
    0x967E0F13, 0xF27D0F12, 0x527C1013, 0xFFD83331, 0xFFF0817F, 0xFF811013, 0xFFC92D2C, 0xFFDF3633,
    0xFFFBE0E0, 0x3D7D1111, 0xE97D0F12, 0xD37C0F12, 0xFB7D0F12, 0x917D1012, 0xF7800F13, 0x05660000,
    0xFF881316, 0xFFA92122, 0xFFC22B2A, 0xFFD1302F, 0xFFBC2827, 0xFFEA4D4B, 0x357D0E13, 0x85801113,
    0x7E7D0E12, 0xC57E1012, 0xBD7D0F12, 0xB47D1012, 0xAF7D0F11, 0xF97F0F12, 0x8B7D0F12, 0xDD851115,
    0x337D0F14, 0x257C0E15,
};
inline constexpr std::string_view kError1x =
    "................"
    "....HTw``|TH...."
    "...y1s:nn:s1y..."
    "..yJC######CJy.."
    ".H1CjQj##jQjC1H."
    ".Ts#QaljjlaQ#s>."
    ".w:#jlallalj#:|."
    ".*n##jlaalj##n*."
    ".*n##jlaa!<##n*."
    ".|:#jlallalj#:|."
    ".Ts#QaljjlaQ#s>."
    ".H1CjQj##jQjC1H."
    "..yJC######CJ4.."
    "...y1s:nnWs14..."
    "....H>|**|>H....";
inline constexpr std::string_view kError2x =
    "................................"
    "................................"
    "..........m}prM33Mrp}..........."
    "........myMbbbbbbbbbbMym........"
    ".......vNbb,-85nn58-,bbNv......."
    "......$%b,;k########kuEbBq......"
    ".....q(bZn############nZb(q....."
    "....vBbSk##############kSbBv...."
    "...mNbZk##ee########ee##kZbNm..."
    "...yb,n##edde######edde##n,b4..."
    "..mMbV##edaao6####edaao6##VbM..."
    "..}b,k##edaaao6##edaaao6##k,bD.."
    "..pbS####edaaadeedaaade####-bp.."
    "..rb8#####edaaaddaaade#####8b].."
    "..Mb5######edaaaaaao6######5bM.."
    "..3bn#######edaaaade#######nb3.."
    "..3bn#######edaaaao6#######nb3.."
    "..Mb5######edaaaaaao6######5bM.."
    "..rb8#####edaaaddaaade#####8b].."
    "..pb-####edaaadeedaaade####-b@.."
    "..}b,k##edaaao6##edaaao6##k,bD.."
    "..mMbV##edaao6####edaao6##;bM..."
    "...yb,n##edde######edde##n,b4..."
    "...mNbZk##ee########ee##kZb[m..."
    "....vBbSk##############kSbBv...."
    ".....q(bZn############nZb(q....."
    "......$%bUIk########kV,bBq......"
    ".......vNbb,-85nn58-,bb[v......."
    "........m4MbbbbbbbbbbM4m........"
    "...........Dp]M33M]pD...........";
inline constexpr std::string_view kError3x =
    "................................................"
    "................................................"
    "................................................"
    ".................Pqp_MB((B&_pqP................."
    "...............}xBbbbbbbbbbbbbBx}..............."
    ".............}LbbbbbbbbbbbbbbbbbbLD............."
    "...........P)(bbbbE-/Cnkk9C/-Ebbbb()P..........."
    "..........X&bbbbK:###########kWKbbbbF~.........."
    ".........RBbbbZ5################5zbbbBR........."
    "........R3bb7V####################V7bb3=........"
    ".......XBbbUC######################:UbbB~......."
    "......P&bbU5########################5UbbFP......"
    "......)bb7C####ctc############ctc####:7bbG......"
    ".....}(bbV####chaig##########chaig####;bb(0....."
    ".....Lbbz####cfaaafc########cfaaafc####Zbb^....."
    "....}bbb5###chaaaaaig######chaaaaaig###5bbbD...."
    "....xbbK####taaaaaaafc####cfaaaaaaat####Kbb2...."
    "...PBbb:####chaaaaaaaig##chaaaaaaaig####WbbB+..."
    "...qbbE######cfaaaaaaafccfaaaaaaafc#####kEbb$..."
    "...pbb-#######cfaaaaaaaffaaaaaaafc#######-bb@..."
    "..._bb/########chaaaaaaaaaaaaaaig########/bbA..."
    "...MbbC#########chaaaaaaaaaaaaig#########Cbb&..."
    "...Bbb9##########chaaaaaaaaaaig##########9bbB..."
    "...(bbk###########cfaaaaaaaafc###########kbbO..."
    "...(bbk###########chaaaaaaaaig###########kbbO..."
    "...Bbb9##########chaaaaaaaaaaig##########9bbB..."
    "...MbbC#########chaaaaaaaaaaaaig#########Cbb&..."
    "..._bb/########chaaaaaaaaaaaaaaig########/bbA..."
    "...pbb-#######cfaaaaaaaffaaaaaaafc#######-bb@..."
    "...qbbEk#####cfaaaaaaafccfaaaaaaafc#####kEbb$..."
    "...PBbbW####chaaaaaaaig##chaaaaaaaig####WbbB+..."
    "....xbbK####taaaaaaafc####cfaaaaaaat####Kbb2...."
    "....}bbb5###chaaaaaig######chaaaaaig###CbbbD...."
    ".....Lbbz####cfaaafc########cfaaafc####zbbY....."
    ".....D(bbV####chaig##########chaig####;bb(0....."
    "......)bb7:####ctc############ctc####:7bb{......"
    "......PFbbU5########################5UbbFP......"
    ".......~BbbU:######################:Ubb%v......."
    "........R3bb7;####################;7bb3=........"
    ".........RBbbbz5################Czbbb%=........."
    "..........~FbbbbKWk##########kWKbbbbFv.........."
    "...........PG(bbbbE-/C9kk9C/-Ebbbb({P..........."
    ".............0^bbbbbbbbbbbbbbbbbbY0............."
    "...............D2BbbbbbbbbbbbbB2D..............."
    ".................+$pA&B((B&A@$+.................";

// Triangle with a question mark: out of specification.
inline constexpr std::uint32_t kRangeErrorColors[] = {
    0x00000000, 0xFFE5383B, 0xFF8C1116, 0xFFFFFFFF, 0xFD8C1116, 0xFE8C1116, 0x03AA0000, 0xFF8D1217,
    0xFFE4373A, 0xFFF7C3C4, 0xFFFAD7D8, 0x02800000, 0x0D891414, 0xEF8C1116, 0xFFE4383B, 0x0680002B,
    0x328A0F14, 0x918D1217, 0xFFEE7E80, 0xC08B1117, 0xFFB92429, 0x608D1015, 0xFFEA5C5E, 0xFFF3A0A1,
    0xF4A61C21, 0x788C1115, 0xD88C1116, 0xFFCF2E32, 0xA68C1116, 0xFFFCEBEB, 0x488E1215, 0xFFE74A4D,
    0x1F8C1019, 0xFFF08F91, 0xFFF5B3B4, 0xFFEC6C6E, 0xFF9C181C, 0xFFAC1F23, 0xCB931319, 0xB38C1115,
    0xFFC42A2D, 0x558D1215, 0x858C1115, 0xE38C1116, 0x6E8D1317, 0xFFDA3337, 0xFFFBE1E2, 0xFFFEF5F5,
    0x3D8A1115, 0xF39D191E, 0x288C1313, 0xFFF8CCCD, 0xFFE64143, 0xFFED7577, 0xFFF4AAAB, 0x168B0C17,
    0x9E8C1217, 0xFFEF8889, 0xFFE85254, 0xEA901418, 0xCF8C1116, 0xFAB12226, 0xF6AC1F23, 0xFF95151A,
    0xFFA51C21, 0xFFF19697, 0xF68C1116, 0xC88C1116, 0x7F911218, 0xAD8C1216, 0x4E8D1017, 0xFFF6BDBE,
    0x678D1116, 0x978C1116, 0xB98D1116, 0xFFB32226, 0x9A921419, 0xEE911218, 0x5B8C1116, 0x8B8B1116,
    0xFFD43034, 0xFFDF3539, 0xFFBE272B, 0xFFF9D3D3, 0xFFFADCDC, 0xFFC92B2F, 0xFFE74548, 0xFFF29B9D,
    0xFFF3A5A7, 0xFFFCE6E6,
};
inline constexpr std::string_view kRangeError1x =
    "......1;;1......"
    ".....eK776e....."
    ".....tV##Vt....."
    "....n5z##z5n...."
    "....,V####w,...."
    "...n5@$SS$@5n..."
    "...QwZbTTbZwQ..."
    "..n<@u340bF@<k.."
    "..xw###XbBD#wx.."
    ".k<@###BTD##@lk."
    ".(w##########8(."
    "k%R####bb####R%k"
    "(8#####bb#####8("
    "K`############`K"
    "=laaaaaaaaaaaal=";
inline constexpr std::string_view kRangeError2x =
    "..............E,,E.............."
    ".............=%aa%=............."
    "............CcaJJacC............"
    "...........k5as##sa5k..........."
    "...........xaI###mIa(..........."
    "..........klaz####zalk.........."
    "..........Oa!######!aO.........."
    ".........1laz######za%1........."
    ".........>a!########!a>........."
    "........1%a@########@a%1........"
    "........paJ##HGXXGH##!ap........"
    ".......1%a@#Gbbbbbb+#@a%E......."
    ".......-aJ#3bbbbbbbbF#Ja-......."
    "......E%aR#^bbbSSbbbi#RfcE......"
    "......2aJ##Xiiv##hbbT##Ja2......"
    ".....WcfR#######|bbb^##RfcW....."
    ".....Aa:######H_bbbb3###:aA....."
    "....WcfR######ibbbbG####Rfco...."
    "....)a:#######ibbb|######:a)...."
    "...odfR#######ibbi#######[fdo..."
    "...La:####################:aL..."
    "..odf[####################[fao.."
    "../as#########bbbb#########sa/.."
    ".Uaf[#########bbbb#########[9aU."
    ".ras##########bbbb##########sa&."
    "oa9[##########bbbb##########[9ao"
    "xa:##########################:aQ"
    ">a:[########################[:a>"
    "UdaaaaaaaaaaaaaaaaaaaaaaaaaaaadU"
    ".N&laaaaaaaaaaaaaaaaaaaaaaaalrN.";
inline constexpr std::string_view kRangeError3x =
    "......................eWWe......................"
    "....................nxlaalxn...................."
    "...................k/aaaaaark..................."
    "..................jLaaa99aaaLj.................."
    "..................xaaasmmsaaax.................."
    ".................E%aas####saa%E................."
    ".................-aaIg####gIaa-................."
    "................E%aaz######zaacE................"
    "................2aa!########!aa2................"
    "...............Wcaaz########zaacW..............."
    "...............Aaa!##########!aaA..............."
    "..............Wcaa@##########@aaco.............."
    "..............)aa!############!aa).............."
    ".............odaa@############@aado............."
    ".............LaaJ##############JaaL............."
    "............odafR###D3|GGv34###RfaaU............"
    "............/aaJ##Y0bbbbbbbbG{##Jaa/............"
    "...........UaafR#Y^bbbbbbbbbb_{#RfaaU..........."
    "...........raaJ##0bbbbbbbbbbbbG##Jaa&..........."
    "..........CaafR#{TbbbbbbbbbbbbbD#RfaaC.........."
    "..........&aa:##ZbbbbbBXXBbbbbbq##:aa&.........."
    ".........*aafR##FbbbbTY###Tbbbb$##[faa*........."
    ".........6aa:###Duuuuu###3bbbbbq###:aa6j........"
    "........Naaf[##########Y}bbbbbb4###[faaN........"
    ".......j6aas##########Z~bbbbbbX#####saaye......."
    ".......=aaf[#########}bbbbbbbT4#####[faa=......."
    "......eyaas##########hbbbbbbTH#######saaye......"
    "......taaf[##########hbbbbbBu########[9aat......"
    ".....nPaas###########hbbbb_{##########saaPn....."
    ".....Qaa9[###########hbbbbh###########[9aa,....."
    "....nPaa]##############################]aaPn...."
    "....Qaa9[##############################g9aaQ...."
    "...k5aa]################################]aalk..."
    "...xaa9g#############bbbbbb#############g9aax..."
    "..klaaM##############bbbbbb##############Maalk.."
    "..(aa9g##############bbbbbb##############gIaa(.."
    ".klaaM###############bbbbbb###############Maal1."
    ".OaaIg###############bbbbbb###############gIaaO."
    "ePaa`################bbbbbb################`aaPj"
    "oaa9m######################################m9aao"
    "=aaJ########################################JaaN"
    "*aaI@g####################################g@Iaa*"
    "klaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa%k"
    ".=caaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaac=."
    "..oAP%aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa%P2o..";

// Entry field with a crossed disc: cannot be read.
inline constexpr std::uint32_t kInputErrorColors[] = {
    0x00000000, 0xFFF7F9FB, 0xFF2B3A4A, 0xFFE83A37, 0xFF7D0F12, 0xFFFFFFFF, 0xFFE94542, 0xFFFAD4D3,
    0xFFEC5856, 0xFFFDECEB, 0xFFE63936, 0xFFE23835, 0x04404040, 0xFFB42525, 0xFFEB5754, 0xFFEF7674,
    0xFFF8C0BF, 0x7F7C0E12, 0xFF959DA6, 0xBF7D0F11, 0xFFA86366, 0x427C0F13, 0xBF2B3949, 0xFFC8CCD2,
    0x8E364656, 0xFFCEAAAC, 0xFF903335, 0xFFBD8789, 0xFFF4A2A1, 0x237C0F0F, 0xA17D0E11, 0xF4991A1C,
    0xE7821214, 0xFF9B494C, 0xFFE4D5D8, 0xE52B3A49, 0xFFC72D2C, 0xFFD7BCBE, 0x557E0F12, 0xFF862124,
    0x752C3B4A, 0xFFA12526, 0xFFEFE9EB, 0xFFB4797C, 0xD67D0F12, 0x11780F0F, 0xFFD43230, 0xFF8C1517,
    0xFFF6B3B2, 0xFF822C30, 0xCB841214, 0xF37D0F12, 0xFF953E40, 0xCC2B3A4A, 0xFFAE6D6F, 0xFF9C1B1D,
    0x987E0F12, 0x862C394A, 0xFF741318, 0x897D0F13, 0xFF811719, 0xFFF2F1F3, 0xFFFEF6F6, 0xFFEB504E,
    0xF69F1D1E, 0xEC7D0F12, 0xFB2E3C4C, 0xF9771217, 0x3C7B1111, 0xCC7D0F12, 0xFF8C2528, 0xFFEBEEF1,
    0xFF882D30, 0xFFDC3633, 0xF97D0F12, 0xE57D0E12, 0x7B811113, 0x09711C1C, 0xFF911719, 0xFF851215,
    0xFF9A3D40, 0xFFB97E80, 0xFFDAC1C3, 0xFE781115, 0x517E1013, 0xFFA01D1E, 0xFFFAD8D7, 0xFFF2F4F7,
    0xFFD0302F, 0xFFFEFAFA,
};
inline constexpr std::string_view kInputError1x =
    "................"
    "w%aaaaaaaaaaaa%w"
    "%+############+%"
    "a#aaa##########a"
    "a##a###########a"
    "a##a###########a"
    "a##a###|z*c*[7#a"
    "a##a##|@NSiSN@|a"
    "a#aaa#zNUnbnUNza"
    "%+####*Sn8A8nS*%"
    "w%aaaacibAdAbicw"
    "......ESn8A8nSE."
    "......5!UnbnUD;."
    "......<WDSiSDWk."
    ".......k;E/E;k..";
inline constexpr std::string_view kInputError2x =
    "................................"
    "................................"
    "k3HaaaaaaaaaaaaaaaaaaaaaaaaaaH3k"
    "3aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa3"
    "Hav##########################vaH"
    "aa############################aa"
    "aa##aaaaaa####################aa"
    "aa##aaaaaa####################aa"
    "aa####aa######################aa"
    "aa####aa######################aa"
    "aa####aa######################aa"
    "aa####aa######################aa"
    "aa####aa#########J0y66y0J#####aa"
    "aa####aa#######GFccccccccFG###aa"
    "aa####aa######]Lc>lSjjSl>cL]##aa"
    "aa####aa#####GLc`jbbbbbbj`cLG#aa"
    "aa##aaaaaa###Fc`eogbbbbgoe`cF#aa"
    "aa##aaaaaa##Jc>jodhgbbghdoj>cJaa"
    "aa##########0clbghdhgghdhgblc0aa"
    "Hav#########ycSbbghdhhdhgbbSc,aH"
    "3aaaaaaaaaaa^cjbbbghddhgbbbjc^a3"
    "k3Haaaaaaaaa^cjbbbghddhgbbbjc^3k"
    "............QcSbbghdhhdhgbbScQ.."
    "............2clbghdhgghdhgblc2.."
    "............tc>jodhgbbghdoj>ct.."
    ".............rc`eogbbbbgoe`cr..."
    ".............B$c`jbbbbbbj`c$B..."
    "..............($c>lSjjSl>c$(...."
    "...............BrccccccccrB....."
    ".................t2QXXQ2t.......";
inline constexpr std::string_view kInputError3x =
    "................................................"
    "................................................"
    "................................................"
    ".kMZ%aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa%ZMk."
    "kuaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaauk"
    "MaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaM"
    "Zaaq|######################################|qaaZ"
    "%aa|########################################|aa%"
    "aaa##########################################aaa"
    "aaa###aaaaaaaaa##############################aaa"
    "aaa###aaaaaaaaa##############################aaa"
    "aaa###aaaaaaaaa##############################aaa"
    "aaa######aaa#################################aaa"
    "aaa######aaa#################################aaa"
    "aaa######aaa#################################aaa"
    "aaa######aaa#################################aaa"
    "aaa######aaa#################################aaa"
    "aaa######aaa#################################aaa"
    "aaa######aaa##############OxsY*6*YsxO########aaa"
    "aaa######aaa############OP6ccccccccc6PO######aaa"
    "aaa######aaa###########xLcccccccccccccLx#####aaa"
    "aaa######aaa##########zcccc=l}-i-}l=ccccz####aaa"
    "aaa######aaa#########zcccTIbbbbbbbbbITcccz###aaa"
    "aaa######aaa########xccc1jbbbbbbbbbbbj1cccx##aaa"
    "aaa###aaaaaaaaa####OLcc1imoebbbbbbbeomi1ccLO#aaa"
    "aaa###aaaaaaaaa####PccTjmhdfebbbbbefdhmjTccP#aaa"
    "aaa###aaaaaaaaa###O6ccIbodddfebbbefdddobIcc67aaa"
    "aaa###############xcc=bbefdddfebefdddfebb=ccxaaa"
    "%aa|##############scclbbbefddd{9fddd{ebbblccsaa%"
    "Zaaq|#############Ycc}bbbbefddd~dddfebbbb}ccVaaZ"
    "Maaaaaaaaaaaaaaaaa4cc-bbbbbefddddd{ebbbbb-cc4aaM"
    "kuaaaaaaaaaaaaaaaacccibbbbbb9~ddd~9bbbbbbicccauk"
    ".kMZ%aaaaaaaaaaaaa4cc-bbbbbefddddd{ebbbbb-cc&Mk."
    "..................)cc}bbbbefddd~dddfebbbb}cc)..."
    "..................Ccclbbbefddd{9fddd{ebbblccC..."
    "..................Kcc=bbefdddfebefdddfebb=ccK..."
    "..................<XccIbodddfebbbefdddobIccX<..."
    "...................5ccTjmhdfebbbbbefdhmjTcc5...."
    "...................R$cc1imoebbbbbbbeomi1cc$R...."
    "....................Kccc1jbbbbbbbbbbbj1ccc_....."
    ".....................pcccTIbbbbbbbbbITcccp......"
    "......................pcccc=l}-i-}l=ccccp......."
    ".......................K$ccccccccccccc$_........"
    "........................R5XcccccccccX5R........."
    "..........................<KC):/:)CK<...........";

// Stop sign with an exclamation mark.
inline constexpr std::uint32_t kCriticalColors[] = {
    0x00000000, 0xFFE0312F, 0xFF6E0B10, 0xFFFFD5D2, 0xFFFFFFFF, 0xFFFFD4D1, 0x02800000, 0x01000000,
    0x9E6E0B10, 0x976E0C0F, 0xFFE13836, 0xFFE23A38, 0xFFF7ACAA, 0xFFFCC8C5, 0xFFC76B6B, 0xFFE13533,
    0x156D0C0C, 0xFF9C393C, 0xD26F0B10, 0x426C0C0F, 0xFFF2908F, 0xF57B171C, 0xFFF5A19F, 0xF6710B11,
    0xFFF0AAA7, 0xCB6F0B10, 0x916F0B10, 0x3C6F0D11, 0xFFC26565, 0xFFF39693, 0xD76E0B0F, 0xFF973537,
    0xFFF6A6A3, 0xF96E0B10, 0x19700A14, 0xFFF8B0AD, 0xFFF2AEAB, 0xFFFCCBC8, 0xFF9A3739, 0xF8700B10,
    0xF479151A, 0x40700C10, 0xFFF1ACAA, 0xFFC56A6A, 0xFFE03331, 0xFFF39492, 0xFFF6A3A0, 0xFF993538,
    0xFB6E0B10, 0x926E0A10, 0xF67A171C, 0xD36E0B10, 0x186A0B15, 0x3D6D0D11, 0xF9700C10, 0x16680C0C,
    0xFFE03230, 0xFFE13634, 0xFFE23938, 0xFFF8B0AE, 0xFFC26566, 0xFFFCCAC7, 0xFFE13432, 0xFFF6A5A3,
    0xFFFCC8C6, 0xFFC66A6A, 0xFFC66B6B, 0xFF983638, 0xFF9B393C, 0xFFC36566, 0xFFF1ADAA, 0xFFF39592,
    0xF57B161B, 0x9D6E0B10, 0xF47A151A, 0xF7710B11, 0xF47A161B,
};
inline constexpr std::string_view kCritical1x =
    "................"
    "....N0aaaa:N...."
    "...Z,ObbbbO,r..."
    "..Z/w+Q##2sIWr.."
    ".Z/w+Q#cc#2sIWr."
    ".vOR2##cc##2ROv."
    ".ab2###cc###2ba."
    ".ab####cc####ba."
    ".ab####cc####ba."
    ".ab2########2ba."
    ".vOR2##cc##2ROv."
    ".zMwBQ#cc#2s*tr."
    "..zMwBQ##2s*tr.."
    "...z;ObbbbO,r..."
    "....NLaaaaLN....";
inline constexpr std::string_view kCritical2x =
    "................................"
    "................................"
    ".........1Xaaaaaaaaaax1........."
    "........1XaaaaaaaaaaaaX1........"
    ".......oqaD!bbbbbbbbJpaCG......."
    "......oqa&lbbbbbbbbbblKaCG......"
    ".....oqaD!b93######8ubJpaCG....."
    "....oqaD!b93########8ubJpaCG...."
    "...oqaD!b93###cccc###8ubJpaCG..."
    "..oqaD!b93####cccc####8ubJpaCG.."
    "..xaTlb93#####cccc#####8ubJ(ax.."
    "..aalbSn######cccc######nSblaa.."
    "..aabbn#######cccc#######nbbaa.."
    "..aabb########cccc########bbaa.."
    "..aabb########cccc########bbaa.."
    "..aabb########cccc########bbaa.."
    "..aabb########cccc########bbaa.."
    "..aabb########cccc########bbaa.."
    "..aabb####################bbaa.."
    "..aabbn##################nbbaa.."
    "..aalbSn######cccc######nSblaa.."
    "..xaTlbE3#####cccc#####nub7(ax.."
    "..oqaDlbE3####cccc####nub7paCY.."
    "...oqaDlbE3###cccc###nub7paCY..."
    "....oqaDlbE3########nub7paCY...."
    ".....oqaDlbE3######nub7paCY....."
    "......oqa&lbbbbbbbbbblKaCY......"
    ".......oqaDlbbbbbbbb7paCY......."
    "........1XaaaaaaaaaaaaX1........"
    ".........1xaaaaaaaaaax1.........";
inline constexpr std::string_view kCritical3x =
    "................................................"
    "................................................"
    "................................................"
    "..............e-aaaaaaaaaaaaaaaUVe.............."
    ".............e-aaaaaaaaaaaaaaaaaa-e............."
    "............e-aaaaaaaaaaaaaaaaaaaa-e............"
    "...........fhaaa6dbbbbbbbbbbbbdmaaage..........."
    "..........fhaaaPdbbbbbbbbbbbbbbd$aaage.........."
    ".........fhaaaPdbbbbbbbbbbbbbbbbd$aaage........."
    "........fhaaa6dbbHj##########ikbbdmaaage........"
    ".......fhaaa6dbbHj############ikbbdmaaage......."
    "......fhaaa6dbbHj##############ikbbdmaaage......"
    ".....fhaaa6dbbHj#####cccccc#####ikbbdmaaage....."
    "....fhaaa6dbbHj######cccccc######ikbbdmaaage...."
    "...fhaaa6dbbHj#######cccccc#######ikbbdmaaage..."
    "...yaaa)dbbHj########cccccc########ikbbd%aaay..."
    "...Faa)dbbHj#########cccccc#########ikbbd%aaF..."
    "...aaadbbH4##########cccccc##########4Hbbdaaa..."
    "...aaabbb4###########cccccc###########4bbbaaa..."
    "...aaabbb############cccccc############bbbaaa..."
    "...aaabbb############cccccc############bbbaaa..."
    "...aaabbb############cccccc############bbbaaa..."
    "...aaabbb############cccccc############bbbaaa..."
    "...aaabbb############cccccc############bbbaaa..."
    "...aaabbb############cccccc############bbbaaa..."
    "...aaabbb############cccccc############bbbaaa..."
    "...aaabbb############cccccc############bbbaaa..."
    "...aaabbb##############################bbbaaa..."
    "...aaabbb##############################bbbaaa..."
    "...aaabbb4############################4bbbaaa..."
    "...aaadbbH4##########cccccc##########4Hbbdaaa..."
    "...FaaAdbb5j#########cccccc#########ikbbd%aaF..."
    "...yaaaAdbb5j########cccccc########ikbbd%aaay..."
    "...fhaaaAdbb5j#######cccccc#######ikbbdmaaage..."
    "....fhaaaAdbb5j######cccccc######ikbbdmaaage...."
    ".....fhaaaAdbb5j#####cccccc#####ikbbdmaaage....."
    "......fhaaaAdbb5j##############ikbbdmaaage......"
    ".......fhaaaAdbb5j############ikbbdmaaage......."
    "........fhaaaAdbb5j##########ikbbdmaaage........"
    ".........fhaaaPdbbbbbbbbbbbbbbbbd$aaage........."
    "..........fhaaaPdbbbbbbbbbbbbbbd$aaage.........."
    "...........fhaaaAdbbbbbbbbbbbbdmaaage..........."
    "............e-aaaaaaaaaaaaaaaaaaaa-e............"
    ".............e-aaaaaaaaaaaaaaaaaa-e............."
    "..............eVUaaaaaaaaaaaaaaUVe..............";

// Triangle with an exclamation mark: take care.
inline constexpr std::uint32_t kExclamationColors[] = {
    0x00000000, 0xFFFFCF2E, 0xFF8A5D00, 0xFF3A2600, 0xFD8A5D00, 0xFE8A5D00, 0x03AA5500, 0xFF8A5E00,
    0x02808000, 0x0D896200, 0xEF8A5D00, 0xFFFECE2D, 0xFFFECE2E, 0x06805500, 0x328A5C00, 0x358C5B00,
    0x288C6000, 0x91895D00, 0xFFC49617, 0xC08A5D00, 0x638B5D00, 0xF3AA7D0D, 0xFFE1B122, 0xD88A5D00,
    0x4C8A5E00, 0x79895D00, 0xA68A5E00, 0xFF9D7008, 0xFFB28410, 0xFFEFC028, 0xFFD2A31C, 0xCA946604,
    0x1A895800, 0xB38A5D00, 0x858A5E00, 0xFABB8D13, 0x408B5C00, 0xE38A5D00, 0x578A5E00, 0x6F8C5E02,
    0xFFA87A0C, 0xF6B48611, 0x9A906303, 0xFF936503, 0xCF8A5C00, 0xF3A37409, 0xE98F6102, 0xFFF7C72B,
    0xF68A5D00, 0xFFE8B925, 0xC88A5D00, 0xFFCB9C19, 0xFFDAAB20, 0x9F8A5D00, 0xD0916202, 0x7F8F6002,
    0xF38F6102, 0x22875A00, 0xAD8B5D00, 0x148C5900, 0xB98A5C00, 0x8B8A5E00, 0x468A5F00, 0x5E906203,
    0xFFBE9014, 0xFFB88A12, 0x978A5D00, 0xF5AE7F0E, 0xE88A5D00, 0xFFA3750A, 0x748A5C00, 0xDE8A5D00,
    0xFF976A05, 0xEE906302, 0xF2A6780C, 0x6A895E00, 0xC48A5C00, 0x3C885E00, 0x5B895C00, 0xFF8E6001,
    0xFFAE800E, 0xFFE4B523, 0x538A5C00, 0x2E8B5E00, 0xFFCEA01B, 0xFFECBC26, 0xFFF3C329, 0xFFFACB2C,
    0x80895E00, 0x608A6000,
};
inline constexpr std::string_view kExclamation1x =
    "......5OO5......"
    ".....e0HH0e....."
    ".....~R##R~....."
    "....lSu##[Sl...."
    "....:/#bb#/s...."
    "...lS[#bb#VSl..."
    "...Lt##bb##tL..."
    "..l-V##bb##V-h.."
    "..x&###bb###&*.."
    ".h2V###bb###`2h."
    ".1&##########N1."
    "h2`####bb####B25"
    "1N#####bb#####N1"
    "DY############YD"
    "92aaaaaaaaaaaa29";
inline constexpr std::string_view kExclamation2x =
    "..............E::E.............."
    ".............=UaaU=............."
    "............8caAAac8............"
    "...........h(aq##qa(h..........."
    "...........xa)###k)ax..........."
    "..........hiau####uai5.........."
    "..........}aM######Ma}.........."
    ".........5iau######[aU5........."
    ".........7a@##bbbb##Ma7........."
    "........EUfV##bbbb##VfUE........"
    "........pa@###bbbb###@ap........"
    ".......EUaV###bbbb###`aUE......."
    ".......%aA####bbbb####Aa%......."
    "......3Ua`####bbbb####Bac3......"
    "......Za$#####bbbb#####AaZ......"
    ".....ocaB#####bbbb#####B>co....."
    ".....ya$######bbbb######$ay....."
    "....oc>B######bbbb######B>c^...."
    "....4a!#######bbbb#######!a4...."
    "...md>{#######bbbb#######{>dn..."
    "...Fa!####################!aF..."
    "..nd>T####################T>an.."
    "..6aq#########bbbb#########qa6.."
    ".<aPT#########bbbb#########TPaI."
    ".raq##########bbbb##########qa;."
    "maPT##########bbbb##########TPam"
    "*a$##########################$a*"
    "7a!T########################T!a7"
    "IdaaaaaaaaaaaaaaaaaaaaaaaaaaaadI"
    ".K;iaaaaaaaaaaaaaaaaaaaaaaaai;].";
inline constexpr std::string_view kExclamation3x =
    "......................eooe......................"
    "....................l*iaai*l...................."
    "...................h6aaaaaarh..................."
    "..................gFaaa,,aaaFg.................."
    "..................xaafqkkqfaax.................."
    ".................EUaaq####qaaUE................."
    ".................%aa)j####j)aa%................."
    "................3Uaau######uaac3................"
    "................ZaaM########MaaZ................"
    "...............ocaa[########[aaco..............."
    "...............yaaM##########Maay..............."
    "..............ocaa[##########Vfac^.............."
    "..............4aa@###bbbbbb###@aa4.............."
    ".............mdafV###bbbbbb###Vaadn............."
    ".............FaaA####bbbbbb####AaaF............."
    "............ndaa`####bbbbbb####Baaa<............"
    "............6aaA#####bbbbbb#####Aaa6............"
    "...........<aaa`#####bbbbbb#####BaaaI..........."
    "...........raa$######bbbbbb######$aa;..........."
    "..........8aa>B######bbbbbb######B>aa8.........."
    "..........Waa!#######bbbbbb#######$aaW.........."
    ".........waa>{#######bbbbbb#######{>aaw........."
    ".........Qaa!########bbbbbb########!aaQg........"
    "........Kaa>{########bbbbbb########TPaaK........"
    ".......gQaaq#########bbbbbb#########!aave......."
    ".......=aaPT#########bbbbbb#########TPaa=......."
    "......evaaq##########bbbbbb##########qaave......"
    "......saaPT##########bbbbbb##########TPaas......"
    ".....l+aaX###########bbbbbb###########qaaJl....."
    ".....:aaPT###########bbbbbb###########|,aa:....."
    "....lJaaX##############################Xaa(l...."
    "....*aa,|##############################|,aaL...."
    "...h(aa_################################_aa(h..."
    "...xaa,j#############bbbbbb#############j,aax..."
    "..hiaaC##############bbbbbb##############Caaih.."
    "..}aazj##############bbbbbb##############jzaa}.."
    ".hiaaC###############bbbbbb###############Caai5."
    ".Gaazj###############bbbbbb###############jzaaG."
    "e(aaY################bbbbbb################Yaa(g"
    "naa,k######################################k,aam"
    "=aaA########################################AaaK"
    "waazV|####################################|Vzaaw"
    "hiaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaUh"
    ".=caaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaac=."
    "..mZJUaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaU+Z^..";

// Speech bubble with a question mark.
inline constexpr std::uint32_t kQuestionColors[] = {
    0x00000000, 0xFF3A88EF, 0xFF113A75, 0xFFFFFFFF, 0xFF3A87EE, 0x02000080, 0x250E3775, 0x8D103A76,
    0xEE113A75, 0xFD113A75, 0xFF1C4F95, 0xFF2F73CD, 0xFF3782E6, 0xFF9DC4F7, 0x80123A76, 0xCB123A75,
    0xFF3682E5, 0xFF6BA6F3, 0xFFCEE1FB, 0x420F3A74, 0xFF255FAE, 0xFFE6F0FD, 0xFF5397F1, 0xFF85B5F5,
    0xFFB6D3F9, 0x9D103A75, 0xDB143F7D, 0x160C3A74, 0xFF174687, 0x340F3B76, 0xFF468FF0, 0xFF77ADF4,
    0xFFDAE9FC, 0xFFF2F7FE, 0xFF5E9EF2, 0xFFA8CAF8, 0xFF2058A4, 0xFFC0D9FA, 0xFF2B6CC3, 0x0C154080,
    0xFF8EBBF6, 0xD7113A75, 0xFB133E7C, 0xE7123C76, 0xFF1A498E, 0xFF7EB1F5, 0xFF95BFF6, 0xC3113A74,
    0xF4133E7A, 0x86113974, 0xFFF8FBFE, 0xFF408CEF, 0xFFC8DEFB, 0xFF64A1F2, 0xFFAECEF8, 0xFFE0ECFC,
    0xFFECF3FD, 0xF7113A75, 0xFF3075D2, 0xFF4B92F0, 0xFFBBD6F9, 0xFFD3E4FB, 0xCF113A75, 0x92113A75,
    0xFF235CAA, 0xFF4F95F1, 0xFF5A9BF2, 0xFF89B8F5, 0xD3113A75, 0xFA123C79, 0xC7113A75, 0xFFFBFDFF,
    0xFF18478A, 0xFF123C78, 0xFF1B4C91, 0xFF3D8AEF, 0xFF5699F1, 0xFF67A3F3, 0xFF6EA7F3, 0xFF7AAFF4,
    0xFF81B3F5, 0xFF98C1F7, 0xFFB3D1F9, 0xFFE9F2FD, 0x7D103974, 0x40103C74, 0x0A1A3380, 0x18153575,
    0xFF3986EC, 0xFF2259A6,
};
inline constexpr std::string_view kQuestion1x =
    "................"
    ".ByhaaaaaaaahyB."
    ".yKc########cKy."
    ".hc##Z7WWq%##}h."
    ".a###1bbbbE###a."
    ".a#####5Hb2###a."
    ".a#####tbb&###a."
    ".a#####bb<####a."
    ".a############a."
    ".hc####bb####}h."
    ".yK}###ll###}Ky."
    ".ByhO#4)aaaahyB."
    "....a4Ur........"
    "....aU`........."
    "....P`..........";
inline constexpr std::string_view kQuestion2x =
    "................................"
    "................................"
    "...Lm*gaaaaaaaaaaaaaaaaaag*mL..."
    "..L8aaaaaaaaaaaaaaaaaaaaaaaa8L.."
    "..maA4k##################kjAam.."
    "..*a4######################ja*.."
    "..gak######X&Y^WWtJD:######kag.."
    "..aa######Cqbbbbbbbbw:######aa.."
    "..aa######Hbbbbbbbbbb[######aa.."
    "..aa######1bbbbbbbbbb7######aa.."
    "..aa#########:uXXSbbbF######aa.."
    "..aa###########50bbbbJ######aa.."
    "..aa##########lWbbbb+p######aa.."
    "..aa##########bbbbb+v#######aa.."
    "..aa##########bbbbt<########aa.."
    "..aa##########bbbbX#########aa.."
    "..aa########################aa.."
    "..aa########################aa.."
    "..aa##########bbbb##########aa.."
    "..gak#########bbbb#########kag.."
    "..*a4#########bbbb#########ja*.."
    "..maAjk##################kjAa_.."
    "..L8aaaaa/###oQaaaaaaaaaaaaan{.."
    "...L_*gaaa##o,aaaaaaaaaaag*_{..."
    "........aa#o,aN|................"
    "........aao,aN|................."
    "........aa,a(z.................."
    "........aaaN|..................."
    "........aa(z...................."
    "........Tnz.....................";
inline constexpr std::string_view kQuestion3x =
    "................................................"
    "................................................"
    "................................................"
    "......efngaaaaaaaaaaaaaaaaaaaaaaaaaaaagnfe......"
    "....dmhaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaahmd...."
    "....maaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaam...."
    "...ehaaijo############################ojiaahe..."
    "...faaic################################ciaaf..."
    "...naaj##################################jaan..."
    "...gaak###########CR6E^WWt7w@X###########kaag..."
    "...haac#########:l+bbbbbbbbbb2>##########caah..."
    "...aaa##########6bbbbbbbbbbbbbbM##########aaa..."
    "...aaa#########Rbbbbbbbbbbbbbbb+G#########aaa..."
    "...aaa#########qbbbbbbbbbbbbbbbb]#########aaa..."
    "...aaa#########Fbbbbbbbbbbbbbbbbt#########aaa..."
    "...aaa##############Xp$XXu[bbbbbW#########aaa..."
    "...aaa###################>Fbbbbbt#########aaa..."
    "...aaa#################GYbbbbbbb0#########aaa..."
    "...aaa###############;6bbbbbbbbFu#########aaa..."
    "...aaa###############+bbbbbbbb+=##########aaa..."
    "...aaa###############bbbbbbbbWR###########aaa..."
    "...aaa###############bbbbbbb1G############aaa..."
    "...aaa###############bbbbbb[X#############aaa..."
    "...aaa###############bbbbbb###############aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa####################################aaa..."
    "...aaa###############bbbbbb###############aaa..."
    "...haac##############bbbbbb##############caah..."
    "...gaak##############bbbbbb##############kaag..."
    "...naaj##############bbbbbb##############jaan..."
    "...faaic#############llllll#############ciaaf..."
    "...ehaaijo############################ojiaahe..."
    "....maaaaaaaa-s#####c!-aaaaaaaaaaaaaaaaaaaam...."
    "....dmhaaaaaaa-####cIaaaaaaaaaaaaaaaaaaaahmd...."
    "......efngaaaaa###cIaaaaaaaaaaaaaaaaaagnfe......"
    "............aaa##c~aaaxd........................"
    "............aaa#c~aaaxd........................."
    "............aaac~aaaxd.........................."
    "............aaaIaaaxd..........................."
    "............aaaaaaxd............................"
    "............aaaaaxd............................."
    "............aaaaxd.............................."
    "............3aaxd..............................."
    "............V39d................................";

// Disc with an i: for information.
inline constexpr std::uint32_t kInformationColors[] = {
    0x00000000, 0xFF3A88EF, 0xFF113A75, 0xFFFFFFFF, 0xFF3A87EE, 0x01000000, 0xFF3885EA, 0xFF347CDC,
    0xD7113A75, 0xEB113A75, 0xEC113A75, 0xF3113A74, 0xF9113A75, 0xFF15407F, 0xFF154282, 0x0700496D,
    0x320F3875, 0x86133D7A, 0xF8225AA9, 0xAE123B75, 0x56123B74, 0xFF2B6AC0, 0xFF1C4F97, 0x99113A75,
    0x20103878, 0xC5113A74, 0x420F3A74, 0xFF2F72CD, 0x140D4073, 0xB9113A75, 0xDD143F7E, 0xFF2056A1,
    0x8E103975, 0xF514417E, 0xCD113A75, 0xFF3177D4, 0x7F103A74, 0x3C113C77, 0xFF225BA8, 0xFF2866BA,
    0xFF2D6EC6, 0x2C113A74, 0xBF113975, 0xF4133D79, 0x27143B76, 0xFF3682E5, 0xD2113A75, 0xB4113A76,
    0xFF123D79, 0xFF3279D8, 0xFF174586, 0xFF1E539B, 0x38123B76, 0xF82158A5, 0xF7123C79, 0x8B113B75,
    0xC8113975, 0x83123A75, 0x52103B76, 0x3F103975, 0xFF2967BD, 0x2F103C77, 0x230F3A75, 0xF9113B78,
    0x89133C79, 0xEF113A75, 0x96113A75, 0xFC113A75, 0xE9123A75, 0xD9103A76, 0xBD123A75, 0xF7225AA6,
    0xB0113A75, 0xB7113B75, 0xDE143F7C, 0x36133976, 0x160C3A74, 0xFF123B77, 0xFF3986EC, 0xFF2A69BE,
    0xFF3179D6, 0xFF3884E8, 0xFF164484, 0xFF1F549F, 0xFF235CAA, 0xFF2C6CC4, 0xFF2E71CB, 0x05003366,
    0xFF1C4E95, 0xFF2259A6,
};
inline constexpr std::string_view kInformation1x =
    "................"
    "....;!/99C!;...."
    "...sPqHeeHqP4..."
    "..sFV######VF4.."
    ".;PV###bb###VP;."
    ".!q####bb####Zp."
    "./H##########HC."
    ".9e###bbb####e9."
    ".9e####bb####[0."
    ".CH####bb####HC."
    ".!q####bb####+p."
    ".;PV##bbbb##VPA."
    "..4FV######VF4.."
    "...4PZHeeHZP4..."
    "....;pC99CpA....";
inline constexpr std::string_view kInformation2x =
    "................................"
    "................................"
    "..........do3OgjjgO3o..........."
    "........ds)aaaaaaaaaa)sd........"
    ".......82aamKzfeefzKmaa28......."
    "......J(am>c########cM]aiy......"
    ".....ykaXe############eXak5....."
    "....8ia_c##############c_ahw...."
    "...d2aXc######bbbb######cXaxd..."
    "...same#######bbbb#######ema4..."
    "..d)at########bbbb########>ag..."
    "..oamc########bbbb########cmao.."
    "..3aK######################KaI.."
    "..Oaz######################{a*.."
    "..)af#######bbbbbb#########fag.."
    "..jae#######bbbbbb#########eaj.."
    "..jae#########bbbb#########[a$.."
    "..)af#########bbbb#########fag.."
    "..Oaz#########bbbb#########{a*.."
    "..3aK#########bbbb#########KaI.."
    "..oamc########bbbb########cma7.."
    "..dgat########bbbb########>ag..."
    "...same#####bbbbbbbb#####[ma4..."
    "...d2aXc####bbbbbbbb####cXaxd..."
    "....8ha_c##############cKahw...."
    ".....5kaXe############[Xak5....."
    "......J(alLc########ctmaiy......"
    ".......wxaamKzfeef{Kmaaxw......."
    "........d4gaaaaaaaaaag4d........"
    "...........oI*gjjg*Io...........";
inline constexpr std::string_view kInformation3x =
    "................................................"
    "................................................"
    "................................................"
    ".................n53,g$kk$g,35n................."
    "...............ov$aaaaaaaaaaaa$vo..............."
    ".............oBaaaaaaaaaaaaaaaaaa-7............."
    "...........nE&aaaaWKMVR==RVMKWaaaa&En..........."
    "..........QSaaa<DH###########cH^<aaaSQ.........."
    ".........Yiaaauf################fuaaah:........."
    "........YjaaUt####################>Uaaj:........"
    ".......Qiaal@######################HlaahQ......."
    "......nSaalf########################flaaGn......"
    "......EaaU@##########bbbbbb##########HUaaE......"
    ".....o&aat###########bbbbbb###########6aa&7....."
    ".....Baau############bbbbbb############uaaT....."
    "....oaa<f############bbbbbb############f<aao...."
    "....vaaD#############bbbbbb#############^aa%...."
    "...n$aaH#############bbbbbb#############Haa$|..."
    "...yaaW#################################cWaa5..."
    "...3aaK##################################KaaI..."
    "...,aaM##################################`aar..."
    "...gaaV###########bbbbbbbbb##############Vaag..."
    "...iaaR###########bbbbbbbbb##############Raah..."
    "...kaa=###########bbbbbbbbb##############eaak..."
    "...kaa=##############bbbbbb##############eaak..."
    "...iaaR##############bbbbbb##############Raah..."
    "...gaaV##############bbbbbb##############@aaS..."
    "...,aaM##############bbbbbb##############`aar..."
    "...IaaK##############bbbbbb##############KaaI..."
    "...5aaWc#############bbbbbb#############c]aaJ..."
    "...n$aaH#############bbbbbb#############Haai|..."
    "....vaaD#############bbbbbb#############^aa%...."
    "....oaa<f############bbbbbb############faaa7...."
    ".....-aau#########bbbbbbbbbbbb#########}aaT....."
    ".....7&aa>########bbbbbbbbbbbb########6aakN....."
    "......EaaUH#######bbbbbbbbbbbb#######HUaa1......"
    "......nSaalf########################flaaGn......"
    ".......QhaalH######################Hlaah8......."
    "........:jaaU6####################6Uaaj:........"
    ".........:haaauf################f}aaah:........."
    "..........QGaaa<^Hc##########cH^aaaaG8.........."
    "...........nE&aaaaW~`VR==R@`~]aaaak1n..........."
    ".............7TaaaaaaaaaaaaaaaaaaTN............."
    "...............o%$aaaaaaaaaaaai%7..............."
    ".................|5IrSikkiSrIJ|.................";

// In the order of qrnImageId.
inline constexpr PictureTable kPictureTables[] = {
    {kBlankColors, {kBlank1x, kBlank2x, kBlank3x}},
    {kFolderColors, {kFolder1x, kFolder2x, kFolder3x}},
    {kMethodColors, {kMethod1x, kMethod2x, kMethod3x}},
    {kDialogColors, {kDialog1x, kDialog2x, kDialog3x}},
    {kInfoColors, {kInfo1x, kInfo2x, kInfo3x}},
    {kLockedColors, {kLocked1x, kLocked2x, kLocked3x}},
    {kInitValueColors, {kInitValue1x, kInitValue2x, kInitValue3x}},
    {kChangedColors, {kChanged1x, kChanged2x, kChanged3x}},
    {kDynamic1Colors, {kDynamic11x, kDynamic12x, kDynamic13x}},
    {kDynamic2Colors, {kDynamic21x, kDynamic22x, kDynamic23x}},
    {kDynamicOfflineColors, {kDynamicOffline1x, kDynamicOffline2x, kDynamicOffline3x}},
    {kNeededColors, {kNeeded1x, kNeeded2x, kNeeded3x}},
    {kErrorColors, {kError1x, kError2x, kError3x}},
    {kRangeErrorColors, {kRangeError1x, kRangeError2x, kRangeError3x}},
    {kInputErrorColors, {kInputError1x, kInputError2x, kInputError3x}},
    {kCriticalColors, {kCritical1x, kCritical2x, kCritical3x}},
    {kExclamationColors, {kExclamation1x, kExclamation2x, kExclamation3x}},
    {kQuestionColors, {kQuestion1x, kQuestion2x, kQuestion3x}},
    {kInformationColors, {kInformation1x, kInformation2x, kInformation3x}},
};
// clang-format on

}  // namespace qrn::built_in_pictures
