// Status codes of the whole program: signed 32 bits, 0 is success, never thrown.
// Only interface code turns a code into words; `StatusText` is for logs and the command line.
#pragma once
#include <cstdint>
#include <string_view>

using QvxStatus = std::int32_t;

inline constexpr QvxStatus kQvxOK = 0;
inline constexpr QvxStatus kQvxDirectoryFull = -33;
inline constexpr QvxStatus kQvxDiskFull = -34;
inline constexpr QvxStatus kQvxEndOfFile = -39;  // a walk ends quietly on it
inline constexpr QvxStatus kQvxTooManyFiles = -42;
inline constexpr QvxStatus kQvxFileNotFound = -43;
inline constexpr QvxStatus kQvxBadArgument = -50;
inline constexpr QvxStatus kQvxNoMemory = -108;
inline constexpr QvxStatus kQvxNullHandle = -109;
inline constexpr QvxStatus kQvxUserCanceled = -128;

inline constexpr QvxStatus kQvxLockFailed = -623;  // pixels that can't be had

inline constexpr QvxStatus kQvxNotOfKind = -2008;  // not the kind of file it was taken for
inline constexpr QvxStatus kQvxNoMovie = -2010;
inline constexpr QvxStatus kQvxNoDataRefType = -2012;
inline constexpr QvxStatus kQvxNoDataRef = -2047;

inline constexpr QvxStatus kQvxNullReader = -8961;
inline constexpr QvxStatus kQvxUnsupported = -8962;
inline constexpr QvxStatus kQvxDrawStopped = -8967;
inline constexpr QvxStatus kQvxMalformed = -8969;
inline constexpr QvxStatus kQvxNoDefaultWindow = -8971;
inline constexpr QvxStatus kQvxSeekFailed = -8972;  // also: a chain or element missing

inline constexpr QvxStatus kQvxBadChain = -40001;  // null, stale or foreign reference
inline constexpr QvxStatus kQvxBadValueIndex = -40002;
inline constexpr QvxStatus kQvxNoDestination = -40003;
inline constexpr QvxStatus kQvxBadMultiplicity = -40004;
inline constexpr QvxStatus kQvxWrongVR = -40005;
inline constexpr QvxStatus kQvxNotASequence = -40006;
inline constexpr QvxStatus kQvxNoResultRecord = -40007;
inline constexpr QvxStatus kQvxNoSuchElement = -40008;  // an answer, not a failure
inline constexpr QvxStatus kQvxNoValue = -40009;        // an answer, not a failure
inline constexpr QvxStatus kQvxResultNotNull = -40011;

inline constexpr QvxStatus kQvxOutOfMemory = -41002;  // of the reader's memory layer
inline constexpr QvxStatus kQvxNegativeSize = -41004;

inline constexpr QvxStatus kQvxImporterValid = static_cast<QvxStatus>(0x80008002);
inline constexpr QvxStatus kQvxNoImporter = static_cast<QvxStatus>(0x80008001);

// Codes of opening and of copies. The first is also an errno, which no open answers with.
inline constexpr QvxStatus kZelDiscOpenFailed = 31;
inline constexpr QvxStatus kZelNoPatientInFile = 20016;
inline constexpr QvxStatus kZelNoPatientInFolder = 20017;
inline constexpr QvxStatus kZelNoPatientInDirectory = 20018;  // of a DICOMDIR
inline constexpr QvxStatus kZelRecentFailed = 20019;
inline constexpr QvxStatus kZelCopyErrors = 20020;        // too many in one copy
inline constexpr QvxStatus kZelCopyTargetExists = 20021;  // handled, never reported
inline constexpr QvxStatus kZelCopyFailed = 20022;        // for no known reason

inline constexpr QvxStatus kZelBufferFull = 20053;  // of a frame buffer: nothing may be evicted

// What a code means in a few plain words; "unknown error" for a code that is not above, the
// system's words for a positive one (an errno).
[[nodiscard]] std::string_view StatusText(QvxStatus status);
