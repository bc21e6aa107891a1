using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The colours with names.</summary>
[PythonEnum(EnumKind.Integer)]
public enum KnownColor
{
    /// <summary>Transparent white, #00FFFFFF.</summary>
    Transparent = 27,

    /// <summary>Alice blue, #F0F8FF.</summary>
    AliceBlue = 28,

    /// <summary>Antique white, #FAEBD7.</summary>
    AntiqueWhite = 29,

    /// <summary>Aqua, #00FFFF.</summary>
    Aqua = 30,

    /// <summary>Aquamarine, #7FFFD4.</summary>
    Aquamarine = 31,

    /// <summary>Azure, #F0FFFF.</summary>
    Azure = 32,

    /// <summary>Beige, #F5F5DC.</summary>
    Beige = 33,

    /// <summary>Bisque, #FFE4C4.</summary>
    Bisque = 34,

    /// <summary>Black, #000000.</summary>
    Black = 35,

    /// <summary>Blanched almond, #FFEBCD.</summary>
    BlanchedAlmond = 36,

    /// <summary>Blue, #0000FF.</summary>
    Blue = 37,

    /// <summary>Blue violet, #8A2BE2.</summary>
    BlueViolet = 38,

    /// <summary>Brown, #A52A2A.</summary>
    Brown = 39,

    /// <summary>Burly wood, #DEB887.</summary>
    BurlyWood = 40,

    /// <summary>Cadet blue, #5F9EA0.</summary>
    CadetBlue = 41,

    /// <summary>Chartreuse, #7FFF00.</summary>
    Chartreuse = 42,

    /// <summary>Chocolate, #D2691E.</summary>
    Chocolate = 43,

    /// <summary>Coral, #FF7F50.</summary>
    Coral = 44,

    /// <summary>Cornflower blue, #6495ED.</summary>
    CornflowerBlue = 45,

    /// <summary>Cornsilk, #FFF8DC.</summary>
    Cornsilk = 46,

    /// <summary>Crimson, #DC143C.</summary>
    Crimson = 47,

    /// <summary>Cyan, #00FFFF.</summary>
    Cyan = 48,

    /// <summary>Dark blue, #00008B.</summary>
    DarkBlue = 49,

    /// <summary>Dark cyan, #008B8B.</summary>
    DarkCyan = 50,

    /// <summary>Dark goldenrod, #B8860B.</summary>
    DarkGoldenrod = 51,

    /// <summary>Dark gray, #A9A9A9.</summary>
    DarkGray = 52,

    /// <summary>Dark green, #006400.</summary>
    DarkGreen = 53,

    /// <summary>Dark khaki, #BDB76B.</summary>
    DarkKhaki = 54,

    /// <summary>Dark magenta, #8B008B.</summary>
    DarkMagenta = 55,

    /// <summary>Dark olive green, #556B2F.</summary>
    DarkOliveGreen = 56,

    /// <summary>Dark orange, #FF8C00.</summary>
    DarkOrange = 57,

    /// <summary>Dark orchid, #9932CC.</summary>
    DarkOrchid = 58,

    /// <summary>Dark red, #8B0000.</summary>
    DarkRed = 59,

    /// <summary>Dark salmon, #E9967A.</summary>
    DarkSalmon = 60,

    /// <summary>Dark sea green, #8FBC8F.</summary>
    DarkSeaGreen = 61,

    /// <summary>Dark slate blue, #483D8B.</summary>
    DarkSlateBlue = 62,

    /// <summary>Dark slate gray, #2F4F4F.</summary>
    DarkSlateGray = 63,

    /// <summary>Dark turquoise, #00CED1.</summary>
    DarkTurquoise = 64,

    /// <summary>Dark violet, #9400D3.</summary>
    DarkViolet = 65,

    /// <summary>Deep pink, #FF1493.</summary>
    DeepPink = 66,

    /// <summary>Deep sky blue, #00BFFF.</summary>
    DeepSkyBlue = 67,

    /// <summary>Dim gray, #696969.</summary>
    DimGray = 68,

    /// <summary>Dodger blue, #1E90FF.</summary>
    DodgerBlue = 69,

    /// <summary>Firebrick, #B22222.</summary>
    Firebrick = 70,

    /// <summary>Floral white, #FFFAF0.</summary>
    FloralWhite = 71,

    /// <summary>Forest green, #228B22.</summary>
    ForestGreen = 72,

    /// <summary>Fuchsia, #FF00FF.</summary>
    Fuchsia = 73,

    /// <summary>Gainsboro, #DCDCDC.</summary>
    Gainsboro = 74,

    /// <summary>Ghost white, #F8F8FF.</summary>
    GhostWhite = 75,

    /// <summary>Gold, #FFD700.</summary>
    Gold = 76,

    /// <summary>Goldenrod, #DAA520.</summary>
    Goldenrod = 77,

    /// <summary>Gray, #808080.</summary>
    Gray = 78,

    /// <summary>Green, #008000.</summary>
    Green = 79,

    /// <summary>Green yellow, #ADFF2F.</summary>
    GreenYellow = 80,

    /// <summary>Honeydew, #F0FFF0.</summary>
    Honeydew = 81,

    /// <summary>Hot pink, #FF69B4.</summary>
    HotPink = 82,

    /// <summary>Indian red, #CD5C5C.</summary>
    IndianRed = 83,

    /// <summary>Indigo, #4B0082.</summary>
    Indigo = 84,

    /// <summary>Ivory, #FFFFF0.</summary>
    Ivory = 85,

    /// <summary>Khaki, #F0E68C.</summary>
    Khaki = 86,

    /// <summary>Lavender, #E6E6FA.</summary>
    Lavender = 87,

    /// <summary>Lavender blush, #FFF0F5.</summary>
    LavenderBlush = 88,

    /// <summary>Lawn green, #7CFC00.</summary>
    LawnGreen = 89,

    /// <summary>Lemon chiffon, #FFFACD.</summary>
    LemonChiffon = 90,

    /// <summary>Light blue, #ADD8E6.</summary>
    LightBlue = 91,

    /// <summary>Light coral, #F08080.</summary>
    LightCoral = 92,

    /// <summary>Light cyan, #E0FFFF.</summary>
    LightCyan = 93,

    /// <summary>Light goldenrod yellow, #FAFAD2.</summary>
    LightGoldenrodYellow = 94,

    /// <summary>Light gray, #D3D3D3.</summary>
    LightGray = 95,

    /// <summary>Light green, #90EE90.</summary>
    LightGreen = 96,

    /// <summary>Light pink, #FFB6C1.</summary>
    LightPink = 97,

    /// <summary>Light salmon, #FFA07A.</summary>
    LightSalmon = 98,

    /// <summary>Light sea green, #20B2AA.</summary>
    LightSeaGreen = 99,

    /// <summary>Light sky blue, #87CEFA.</summary>
    LightSkyBlue = 100,

    /// <summary>Light slate gray, #778899.</summary>
    LightSlateGray = 101,

    /// <summary>Light steel blue, #B0C4DE.</summary>
    LightSteelBlue = 102,

    /// <summary>Light yellow, #FFFFE0.</summary>
    LightYellow = 103,

    /// <summary>Lime, #00FF00.</summary>
    Lime = 104,

    /// <summary>Lime green, #32CD32.</summary>
    LimeGreen = 105,

    /// <summary>Linen, #FAF0E6.</summary>
    Linen = 106,

    /// <summary>Magenta, #FF00FF.</summary>
    Magenta = 107,

    /// <summary>Maroon, #800000.</summary>
    Maroon = 108,

    /// <summary>Medium aquamarine, #66CDAA.</summary>
    MediumAquamarine = 109,

    /// <summary>Medium blue, #0000CD.</summary>
    MediumBlue = 110,

    /// <summary>Medium orchid, #BA55D3.</summary>
    MediumOrchid = 111,

    /// <summary>Medium purple, #9370DB.</summary>
    MediumPurple = 112,

    /// <summary>Medium sea green, #3CB371.</summary>
    MediumSeaGreen = 113,

    /// <summary>Medium slate blue, #7B68EE.</summary>
    MediumSlateBlue = 114,

    /// <summary>Medium spring green, #00FA9A.</summary>
    MediumSpringGreen = 115,

    /// <summary>Medium turquoise, #48D1CC.</summary>
    MediumTurquoise = 116,

    /// <summary>Medium violet red, #C71585.</summary>
    MediumVioletRed = 117,

    /// <summary>Midnight blue, #191970.</summary>
    MidnightBlue = 118,

    /// <summary>Mint cream, #F5FFFA.</summary>
    MintCream = 119,

    /// <summary>Misty rose, #FFE4E1.</summary>
    MistyRose = 120,

    /// <summary>Moccasin, #FFE4B5.</summary>
    Moccasin = 121,

    /// <summary>Navajo white, #FFDEAD.</summary>
    NavajoWhite = 122,

    /// <summary>Navy, #000080.</summary>
    Navy = 123,

    /// <summary>Old lace, #FDF5E6.</summary>
    OldLace = 124,

    /// <summary>Olive, #808000.</summary>
    Olive = 125,

    /// <summary>Olive drab, #6B8E23.</summary>
    OliveDrab = 126,

    /// <summary>Orange, #FFA500.</summary>
    Orange = 127,

    /// <summary>Orange red, #FF4500.</summary>
    OrangeRed = 128,

    /// <summary>Orchid, #DA70D6.</summary>
    Orchid = 129,

    /// <summary>Pale goldenrod, #EEE8AA.</summary>
    PaleGoldenrod = 130,

    /// <summary>Pale green, #98FB98.</summary>
    PaleGreen = 131,

    /// <summary>Pale turquoise, #AFEEEE.</summary>
    PaleTurquoise = 132,

    /// <summary>Pale violet red, #DB7093.</summary>
    PaleVioletRed = 133,

    /// <summary>Papaya whip, #FFEFD5.</summary>
    PapayaWhip = 134,

    /// <summary>Peach puff, #FFDAB9.</summary>
    PeachPuff = 135,

    /// <summary>Peru, #CD853F.</summary>
    Peru = 136,

    /// <summary>Pink, #FFC0CB.</summary>
    Pink = 137,

    /// <summary>Plum, #DDA0DD.</summary>
    Plum = 138,

    /// <summary>Powder blue, #B0E0E6.</summary>
    PowderBlue = 139,

    /// <summary>Purple, #800080.</summary>
    Purple = 140,

    /// <summary>Red, #FF0000.</summary>
    Red = 141,

    /// <summary>Rosy brown, #BC8F8F.</summary>
    RosyBrown = 142,

    /// <summary>Royal blue, #4169E1.</summary>
    RoyalBlue = 143,

    /// <summary>Saddle brown, #8B4513.</summary>
    SaddleBrown = 144,

    /// <summary>Salmon, #FA8072.</summary>
    Salmon = 145,

    /// <summary>Sandy brown, #F4A460.</summary>
    SandyBrown = 146,

    /// <summary>Sea green, #2E8B57.</summary>
    SeaGreen = 147,

    /// <summary>Sea shell, #FFF5EE.</summary>
    SeaShell = 148,

    /// <summary>Sienna, #A0522D.</summary>
    Sienna = 149,

    /// <summary>Silver, #C0C0C0.</summary>
    Silver = 150,

    /// <summary>Sky blue, #87CEEB.</summary>
    SkyBlue = 151,

    /// <summary>Slate blue, #6A5ACD.</summary>
    SlateBlue = 152,

    /// <summary>Slate gray, #708090.</summary>
    SlateGray = 153,

    /// <summary>Snow, #FFFAFA.</summary>
    Snow = 154,

    /// <summary>Spring green, #00FF7F.</summary>
    SpringGreen = 155,

    /// <summary>Steel blue, #4682B4.</summary>
    SteelBlue = 156,

    /// <summary>Tan, #D2B48C.</summary>
    Tan = 157,

    /// <summary>Teal, #008080.</summary>
    Teal = 158,

    /// <summary>Thistle, #D8BFD8.</summary>
    Thistle = 159,

    /// <summary>Tomato, #FF6347.</summary>
    Tomato = 160,

    /// <summary>Turquoise, #40E0D0.</summary>
    Turquoise = 161,

    /// <summary>Violet, #EE82EE.</summary>
    Violet = 162,

    /// <summary>Wheat, #F5DEB3.</summary>
    Wheat = 163,

    /// <summary>White, #FFFFFF.</summary>
    White = 164,

    /// <summary>White smoke, #F5F5F5.</summary>
    WhiteSmoke = 165,

    /// <summary>Yellow, #FFFF00.</summary>
    Yellow = 166,

    /// <summary>Yellow green, #9ACD32.</summary>
    YellowGreen = 167,
}
