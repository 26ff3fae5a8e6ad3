// The catalogues of built-in pictures: texts of "name#number," pairs in
// which a name is found by searching for it with "#" behind it, in any case.
#pragma once

#include <string_view>

namespace tamrix {

// The 33 pictures that buttons, sprites and images can use without a file.
inline constexpr std::string_view kPicCatalogue =
    "PicOK#0,PicSave#1,PicDelete#2,PicExit#3,PicOpen#4,PicNew#5,PicPrint#6,PicAdd#7,PicFind#8,"
    "Pic$#9,PicPeople#10,PicGlass#11,PicOK2#12,PicForbidden#13,PicUndo#14,PicRedo#15,"
    "PicRight#16,PicLeft#17,PicTools#18,PicMoney#19,PicExit2#20,PicForm#21,PicGear#22,"
    "PicBook#23,PicBooks#24,PicBall#25,PicCal#26,PicChart#27,PicFolder#28,PicKeys#29,"
    "PicGlobe#30,PicTalk#31,PicMonitor#32,";
inline constexpr int kPicCount = 33;

// The larger pictures of Image and of the window background.
inline constexpr std::string_view kImgCatalogue = "ImgPantano#0,ImgSobre#1,";
// The animations of AnimatedGif.
inline constexpr std::string_view kGifCatalogue = "GifSapo1#0,GifSapo2#1,GifSapa1#2,GifSapa2#3,";

// The number of `name`, or -1. No delimiter is looked for before the name,
// so the end of an entry's name finds it too: "OK" finds PicOK.
int CatalogueNumber(std::string_view catalogue, std::string_view name);

}  // namespace tamrix
