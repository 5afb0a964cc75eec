// Types, constants and calling convention of the Source Code Control API, version 1.1, with later constants that a 1.1
// client may receive.  Depends on the C library only, so that providers can use it as well.
#pragma once

#include <cstdint>

#if defined(_WIN32)
#define SCC_CALL __cdecl
#define SCC_EXPORT __declspec(dllexport)
#else
#define SCC_CALL
#define SCC_EXPORT __attribute__((visibility("default")))
#endif

namespace kestrel::scc {

// The API was designed for platforms where `long` has 32 bits.
using Long = std::int32_t;
using Dword = std::uint32_t;
using Bool = std::int32_t;
using WindowHandle = void*;

/// The commands; passed to the provider unchanged.
enum SCCCommand : std::int32_t {
  SCC_COMMAND_GET,
  SCC_COMMAND_CHECKOUT,
  SCC_COMMAND_CHECKIN,
  SCC_COMMAND_UNCHECKOUT,
  SCC_COMMAND_ADD,
  SCC_COMMAND_REMOVE,
  SCC_COMMAND_DIFF,
  SCC_COMMAND_HISTORY,
  SCC_COMMAND_RENAME,
  SCC_COMMAND_PROPERTIES,
  SCC_COMMAND_OPTIONS,
};

/// Return codes: negative are errors, positive informational.
enum ReturnCode : Long {
  SCC_I_SHARESUBPROJOK = 7,
  SCC_I_FILEDIFFERS = 6,
  SCC_I_RELOADFILE = 5,
  SCC_I_FILENOTAFFECTED = 4,
  SCC_I_PROJECTCREATED = 3,
  SCC_I_OPERATIONCANCELED = 2,
  SCC_I_ADV_SUPPORT = 1,
  SCC_OK = 0,
  SCC_E_INITIALIZEFAILED = -1,
  SCC_E_UNKNOWNPROJECT = -2,
  SCC_E_COULDNOTCREATEPROJECT = -3,
  SCC_E_NOTCHECKEDOUT = -4,
  SCC_E_ALREADYCHECKEDOUT = -5,
  SCC_E_FILEISLOCKED = -6,
  SCC_E_FILEOUTEXCLUSIVE = -7,
  SCC_E_ACCESSFAILURE = -8,
  SCC_E_CHECKINCONFLICT = -9,
  SCC_E_FILEALREADYEXISTS = -10,
  SCC_E_FILENOTCONTROLLED = -11,
  SCC_E_FILEISCHECKEDOUT = -12,
  SCC_E_NOSPECIFIEDVERSION = -13,
  SCC_E_OPNOTSUPPORTED = -14,
  SCC_E_NONSPECIFICERROR = -15,
  SCC_E_OPNOTPERFORMED = -16,
  SCC_E_TYPENOTSUPPORTED = -17,
  SCC_E_VERIFYMERGE = -18,
  SCC_E_FIXMERGE = -19,
  SCC_E_SHELLFAILURE = -20,
  SCC_E_INVALIDUSER = -21,
  SCC_E_PROJECTALREADYOPEN = -22,
  SCC_E_PROJSYNTAXERR = -23,
  SCC_E_INVALIDFILEPATH = -24,
  SCC_E_PROJNOTOPEN = -25,
  SCC_E_NOTAUTHORIZED = -26,
  SCC_E_FILESYNTAXERR = -27,
  SCC_E_FILENOTEXIST = -28,
  SCC_E_CONNECTIONFAILURE = -29,
};

/// Status of a file.  INVALID has all bits set: test for it first.
enum StatusBits : Long {
  SCC_STATUS_INVALID = -1,
  SCC_STATUS_NOTCONTROLLED = 0x0000,
  SCC_STATUS_CONTROLLED = 0x0001,
  SCC_STATUS_CHECKEDOUT = 0x0002,
  SCC_STATUS_OUTOTHER = 0x0004,
  SCC_STATUS_OUTEXCLUSIVE = 0x0008,
  SCC_STATUS_OUTMULTIPLE = 0x0010,
  SCC_STATUS_OUTOFDATE = 0x0020,
  SCC_STATUS_DELETED = 0x0040,
  SCC_STATUS_LOCKED = 0x0080,
  SCC_STATUS_MERGED = 0x0100,
  SCC_STATUS_SHARED = 0x0200,
  SCC_STATUS_PINNED = 0x0400,
  SCC_STATUS_MODIFIED = 0x0800,
  SCC_STATUS_OUTBYUSER = 0x1000,
};

/// Capabilities of a provider.
enum CapabilityBits : Dword {
  SCC_CAP_REMOVE = 0x00000001,
  SCC_CAP_RENAME = 0x00000002,
  SCC_CAP_DIFF = 0x00000004,
  SCC_CAP_HISTORY = 0x00000008,
  SCC_CAP_PROPERTIES = 0x00000010,
  SCC_CAP_RUNSCC = 0x00000020,
  SCC_CAP_GETCOMMANDOPTIONS = 0x00000040,
  SCC_CAP_QUERYINFO = 0x00000080,
  SCC_CAP_GETEVENTS = 0x00000100,
  SCC_CAP_GETPROJPATH = 0x00000200,
  SCC_CAP_ADDFROMSCC = 0x00000400,
  SCC_CAP_COMMENTCHECKOUT = 0x00000800,
  SCC_CAP_COMMENTCHECKIN = 0x00001000,
  SCC_CAP_COMMENTADD = 0x00002000,
  SCC_CAP_COMMENTREMOVE = 0x00004000,
  SCC_CAP_TEXTOUT = 0x00008000,
  SCC_CAP_ADD_STORELATEST = 0x00200000,
  SCC_CAP_HISTORY_MULTFILE = 0x00400000,
  SCC_CAP_IGNORECASE = 0x00800000,
  SCC_CAP_IGNORESPACE = 0x01000000,
  SCC_CAP_POPULATELIST = 0x02000000,
  SCC_CAP_COMMENTPROJECT = 0x04000000,
  SCC_CAP_DIFFALWAYS = 0x10000000,
  SCC_CAP_GET_NOUI = 0x20000000,
  SCC_CAP_REENTRANT = 0x40000000,
};

/// Flags of the commands.  Values overlap; each flag applies to its own command only.
enum CommandFlags : Long {
  SCC_KEEP_CHECKEDOUT = 0x1000,  // add (per file), check-in
  SCC_FILETYPE_TEXT = 0x01,      // add
  SCC_FILETYPE_BINARY = 0x02,
  SCC_ADD_STORELATEST = 0x04,
  SCC_DIFF_IGNORECASE = 0x0002,  // diff
  SCC_DIFF_IGNORESPACE = 0x0004,
  SCC_DIFF_QD_CONTENTS = 0x0010,
  SCC_DIFF_QD_CHECKSUM = 0x0020,
  SCC_DIFF_QD_TIME = 0x0040,
  SCC_DIFF_QUICK_DIFF = 0x0070,  // mask for testing, never passed
  SCC_GET_ALL = 0x00000001,      // get: names are directories
  SCC_GET_RECURSIVE = 0x00000002,
  SCC_OP_CREATEIFNEW = 0x00000001,  // open project
  SCC_OP_SILENTOPEN = 0x00000002,
  SCC_PL_DIR = 0x00000001,  // populate list: names are directories
};

/// Options of SccSetOption.
enum Option : Long {
  SCC_OPT_EVENTQUEUE = 1,
  SCC_OPT_USERDATA = 2,
  SCC_OPT_HASCANCELMODE = 3,
  SCC_OPT_NAMECHANGEPFN = 4,
  SCC_OPT_SCCCHECKOUTONLY = 5,
  SCC_OPT_SHARESUBPROJ = 6,
};

/// Kinds of text-out messages.
enum MessageKind : Dword {
  SCC_MSG_INFO = 1,
  SCC_MSG_WARNING = 2,
  SCC_MSG_ERROR = 3,
  SCC_MSG_STATUS = 4,
  SCC_MSG_DOCANCEL = 5,
  SCC_MSG_STARTCANCEL = 6,
  SCC_MSG_STOPCANCEL = 7,
};
inline constexpr Long SCC_MSG_RTN_OK = 0;
inline constexpr Long SCC_MSG_RTN_CANCEL = -1;

// Text sizes in bytes, terminator included.
inline constexpr int SCC_NAME_SIZE = 32;
inline constexpr int SCC_AUXLABEL_SIZE = 32;
inline constexpr int SCC_USER_SIZE = 32;
inline constexpr int SCC_PRJPATH_SIZE = 301;
inline constexpr int SCC_LOCALPATH_SIZE = 260;

// Callbacks implemented by the client.  They must not throw.
using TTextOutProc = Long(SCC_CALL*)(const char* text, Dword kind);
using TPopListFunc = Bool(SCC_CALL*)(void* callerData, Bool addOrKeep, Long status, const char* fileName);

}  // namespace kestrel::scc
