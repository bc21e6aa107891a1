using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The double-byte code pages of sequences <c>\M+nXXXX</c>; the value is the digit n.</summary>
[PythonEnum(EnumKind.Flag)]
public enum MifCodePages
{
    /// <summary>The code page that the sequence names.</summary>
    Undefined = 0,

    /// <summary>Shift JIS, code page 932.</summary>
    Japanese = 1,

    /// <summary>Big5, code page 950.</summary>
    TradChinese = 2,

    /// <summary>Unified Hangul, code page 949.</summary>
    Korean = 3,

    /// <summary>Korean Johab, code page 1361.</summary>
    Johab = 4,

    /// <summary>GBK, code page 936.</summary>
    SimpChinese = 5,
}
