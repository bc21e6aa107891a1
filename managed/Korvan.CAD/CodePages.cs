using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Code pages of the text in older drawings; the value is the number of the code page.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CodePages
{
    /// <summary>The code page that the drawing states.</summary>
    Default = 0,

    /// <summary>Thai.</summary>
    Thai = 874,

    /// <summary>Japanese, Shift JIS.</summary>
    Japanese = 932,

    /// <summary>Simplified Chinese, GBK.</summary>
    SimpChinese = 936,

    /// <summary>Korean.</summary>
    Korean = 949,

    /// <summary>Traditional Chinese, Big5.</summary>
    TradChinese = 950,

    /// <summary>Central European.</summary>
    CentralEurope = 1250,

    /// <summary>Cyrillic.</summary>
    Cyrillic = 1251,

    /// <summary>Western European.</summary>
    English = 1252,

    /// <summary>Greek.</summary>
    Greek = 1253,

    /// <summary>Turkish.</summary>
    Turkish = 1254,

    /// <summary>Hebrew.</summary>
    Hebrew = 1255,

    /// <summary>Arabic.</summary>
    Arabic = 1256,

    /// <summary>Baltic.</summary>
    Baltic = 1257,

    /// <summary>Vietnamese.</summary>
    Vietnam = 1258,

    /// <summary>UTF-8, whatever the release of the drawing.</summary>
    Utf8 = 65001,
}
