#include "core/keywords.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>

#include "core/text.h"

namespace tamrix {
namespace {

constexpr std::string_view kKeywords =
    "JoinStr,Message,Write,Format,StrLen,SubStr,StrPos,OpenFile,OpenDB,AddRecord,AddIconSysTray,"
    "AddSysStartup,Wait,Random,WindowHeight,Exp,Trim,API,Atn,Round,Asc,UpdateRecord,DownFileFTP,"
    "ScrollBar,BinToDec,Box,DialogBox,Calendar,CaptureWindow,Chr,Call,Check,Circle,Cls,Combo,"
    "ConnectFTP,ConnectP2P,ConvStr,Copy,Cos,MkDir,DecToBin,UnCaptureWindow,DrawPictures,WeekDay,"
    "Directory,GetText,SendP2P,OutPort,ListenP2P,ButtonStyle,Event,DeleteRecord,ExtractFile,"
    "CloseFile,CloseDB,Picture,Fonts,Gradient,WriteFile,RecordSound,AnimatedGif,Hex,Time,Image,"
    "InsertFile,WindowWidth,ReadFile,ReadPoint,Inport,GetWinReg,GetString,CompactDB,Straight,Link,"
    "ClearWindow,Log,Mask,SystemMenu,MinimizeSysTray,Currency,Frame,ChangeIcon,ChangeWallpaper,"
    "Browser,NewWindow,OrderDB,Radio,Fix,Paint,UpFileFTP,Position,FindFile,FindDB,Printer,Sqr,"
    "Rep.TestEndPage,RGB,DeleteFile,RemoveSysStartup,RmDir,Rectangle,Label,SaveWinReg,SaveString,"
    "Sin,SeqStr,Sgn,RepStr,SQL,SizeFile,Tan,Timer,TestEmail,TestDate,TestMouse,DateAdd,DateDiff,"
    "KeyTest,Text,TotalRecordsDB,Transition,Abs,Int,StrVal,Var,Variable,Video,WebCam,RevDate,"
    "Button,Date,Day,Month,Year,Font,Icon,Window,ReadRecord,Point,Rep,Sound";

constexpr std::string_view kReserved[] = {"WHILE", "LOOP", "IF", "ELSE", "ENDIF", "GOTO", "ENDSUB",
                                          "ENDFUNCTION"};

constexpr std::string_view kNumericKeywords[] = {"INT", "STRVAL", "EXP", "ATN", "ROUND", "COS",
                                                 "FIX", "SQR", "SIN", "TAN", "ABS"};

std::vector<std::string> SplitList(std::string_view list) {
  std::vector<std::string> out;
  std::size_t start = 0;
  for (;;) {
    const auto comma = list.find(',', start);
    out.emplace_back(list.substr(start, comma - start));
    if (comma == std::string_view::npos) break;
    start = comma + 1;
  }
  return out;
}

const std::unordered_set<std::string>& UpperKeywords() {
  static const std::unordered_set<std::string> words = [] {
    std::unordered_set<std::string> set;
    for (const auto& keyword : KeywordList()) set.insert(Upper(keyword));
    return set;
  }();
  return words;
}

std::uint16_t PairOf(char a, char b) {
  return static_cast<std::uint16_t>(static_cast<unsigned char>(a) << 8 | static_cast<unsigned char>(b));
}

// Keyword places by their first two characters.
const std::unordered_map<std::uint16_t, std::vector<std::size_t>>& KeywordsByPair() {
  static const auto byPair = [] {
    std::unordered_map<std::uint16_t, std::vector<std::size_t>> map;
    const auto& list = KeywordList();
    for (std::size_t i = 0; i < list.size(); ++i) map[PairOf(list[i][0], list[i][1])].push_back(i);
    return map;
  }();
  return byPair;
}

}  // namespace

std::vector<std::size_t> KeywordCandidates(std::string_view text) {
  const auto& byPair = KeywordsByPair();
  std::vector<std::size_t> candidates;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    const auto hit = byPair.find(PairOf(text[i], text[i + 1]));
    if (hit != byPair.end()) candidates.insert(candidates.end(), hit->second.begin(), hit->second.end());
  }
  std::sort(candidates.begin(), candidates.end());
  candidates.erase(std::unique(candidates.begin(), candidates.end()), candidates.end());
  return candidates;
}

const std::vector<std::string>& KeywordList() {
  static const std::vector<std::string> list = SplitList(kKeywords);
  return list;
}

bool IsKeyword(std::string_view upperWord) {
  return UpperKeywords().count(std::string(upperWord)) != 0;
}

bool IsNumericKeyword(std::string_view upperName) {
  for (auto keyword : kNumericKeywords) {
    if (keyword == upperName) return true;
  }
  return false;
}

bool IsCommandWord(std::string_view word) {
  const std::string upper = Upper(word);
  if (IsKeyword(upper)) return true;
  for (auto reserved : kReserved) {
    if (StartsWith(upper, reserved)) return true;
  }
  return !upper.empty() && (upper.back() == ':' || upper.back() == '+' || upper.back() == '-');
}

}  // namespace tamrix
