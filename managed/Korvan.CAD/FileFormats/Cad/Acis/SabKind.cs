namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>The bytes before tokens of binary data.</summary>
internal enum SabKind : byte
{
    Character = 2,
    Int16 = 3,
    Integer = 4,
    Single = 5,
    Double = 6,
    String8 = 7,
    String16 = 8,
    String32 = 9,
    True = 10,
    False = 11,
    Pointer = 12,
    Keyword = 13,
    KeywordPart = 14,
    Open = 15,
    Close = 16,
    End = 17,
    LongString = 18,
    Position = 19,
    Vector = 20,
    Enumeration = 21,
    Parameters = 22,
    LongInteger = 23,
}
