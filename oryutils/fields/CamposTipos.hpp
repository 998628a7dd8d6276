#pragma once

namespace OryUtils {

/// What a field of the data-access layer holds. The ordinals are those of that layer; the ones without a name here
/// belong to kinds that no operation of the library tells apart.
enum TFieldType : int {
    ftUnknown = 0,
    ftString = 1,
    ftSmallint = 2,
    ftInteger = 3,
    ftWord = 4,
    ftBoolean = 5,
    ftFloat = 6,
    ftCurrency = 7,
    ftBCD = 8,
    ftDate = 9,
    ftTime = 10,
    ftDateTime = 11,
    ftBytes = 12,
    ftVarBytes = 13,
    ftAutoInc = 14,
    ftBlob = 15,
    ftMemo = 16,
    ftGraphic = 17,
    ftFmtMemo = 18,
    ftFixedChar = 23,
    ftWideString = 24,
    ftLargeint = 25,
    ftArray = 27,
    ftReference = 28,
    ftDataSet = 29,
    ftVariant = 32,
    ftInterface = 33,
    ftGuid = 35,
    ftTimeStamp = 36,
    ftFMTBcd = 37,
    ftFixedWideChar = 38,
    ftWideMemo = 39,
    ftLongWord = 42,
    ftShortint = 43,
    ftByte = 44,
    ftExtended = 45,
    ftStream = 48,
    ftTimeStampOffset = 49,
    ftObject = 50,
    ftSingle = 51,
};

}  // namespace OryUtils
