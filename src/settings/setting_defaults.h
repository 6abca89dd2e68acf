// The texts that readers of the settings fall back on: the separator line, the header templates,
// the error-handling texts, the clean-up steps and the built-in keyword list.
#pragma once

#include <string_view>

namespace brimwork {

/// An apostrophe and 89 equals signs: 90 characters.
inline constexpr std::string_view kSeparatorLine =
    "'=========================================================================================";

/// Eight lines joined by CR LF. The separators in it are kSeparatorLine, whatever separator the
/// user has set.
extern const std::string_view kStandardHeaderTemplate;

/// Eleven lines joined by CR LF, for code that is based on another writer's work.
extern const std::string_view kAdaptedHeaderTemplate;

inline constexpr std::string_view kDefaultErrorHandling = "TEST HANDLE";

/// The handler that the setup dialog offers while none is stored: it says where the error came
/// from, its number and its description. One statement on one line, so that it can be numbered.
inline constexpr std::string_view kOfferedErrorHandling =
    "    MsgBox \"Error \" & Err.Number & \" in CURRENTFULLPROCEDUREPATH: \" & Err.Description, "
    "vbExclamation, \"Error Encountered\"";

inline constexpr std::string_view kDefaultCleanUpCodeOptions =
    "Header,Error,Indent,Comment,LineNumber";

/// The keywords that the setup dialog offers, joined by commas without blanks. Two words come
/// twice, as users' stored copies of the list have them.
inline constexpr std::string_view kBuiltInKeyWordList =
    "-,#Const,#Else,#If,&,*,/,\\,^,+,<,=,>,Abs,Add,And,AppActivate,Array,As,Asc,Atn,Base,Beep,"
    "Binary,Boolean,Byte,Call,Case,CBool,CByte,CCur,CDate,CDbl,CDec,ChDir,ChDrive,Choose,Chr,"
    "CInt,Clear,CLng,Close,Collection,Command,Compare,Const,Cos,CreateObject,CSng,CStr,"
    "CurDir,Currency,CVar,CVErr,Date,DateAdd,DateDiff,DatePart,DateSerial,DateValue,Day,DDB,"
    "Declare,Debug,DefBool,DefByte,DefCur,DefDate,DefDbl,DefDec,DefInt,DefLng,DefObj,DefSng,"
    "DefStr,DefVar,DeleteSetting,Dim,Dir,Do,DoEvents,Double,Each,Else,ElseIf,End,Enum,"
    "Environ,EOF,Eqv,Erase,Err,Error,Exit,Exp,Explicit,False,FileAttr,FileCopy,FileDateTime,"
    "FileLen,Fix,For,Format,FreeFile,Function,FV,Get,GetAllSettings,GetAttr,GetObject,"
    "GetSetting,GoSub,GoTo,Hex,Hour,If,Imp,Input,InStr,Int,Integer,IPmt,IRR,Is,IsArray,"
    "IsDate,IsEmpty,IsError,IsMissing,IsNull,IsNumeric,IsObject,Item,Kill,LBound,LCase,Left,"
    "Len,Let,Like,Line,Input,Loc,Local,Lock,LOF,Log,Long,Loop,LSet,LTrim,Me,Mid,Minute,MIRR,"
    "MkDir,Mod,Module,Month,Name,New,Next,Not,Now,NPer,NPV,Object,Oct,On,Open,Option,Option,"
    "Or,Output,Pmt,PPmt,Preserve,Print,Private,Property,Public,Put,PV,QBColor,Raise,"
    "Randomize,Rate,ReDim,Remove,Reset,Resume,Return,RGB,Right,RmDir,Rnd,RSet,RTrim,"
    "SaveSetting,Second,Seek,Select,SendKeys,Set,SetAttr,Sgn,Shell,Sin,Single,SLN,Space,Spc,"
    "Sqr,Static,Stop,Str,StrComp,StrConv,String,Sub,Switch,SYD,Tab,Tan,Then,Time,Timer,"
    "TimeSerial,TimeValue,Trim,True,TypeName,To,UBound,UCase,Unlock,Val,Variant,VarType,"
    "Weekday,Wend,While,Width,With,Write";

}  // namespace brimwork
