namespace Korvan.CAD;

public readonly partial struct Color
{
    /// <summary>Gets transparent white, #00FFFFFF.</summary>
    public static Color Transparent => new(0x00FFFFFF);

    /// <summary>Gets alice blue, #F0F8FF.</summary>
    public static Color AliceBlue => new(0xFFF0F8FF);

    /// <summary>Gets antique white, #FAEBD7.</summary>
    public static Color AntiqueWhite => new(0xFFFAEBD7);

    /// <summary>Gets aqua, #00FFFF.</summary>
    public static Color Aqua => new(0xFF00FFFF);

    /// <summary>Gets aquamarine, #7FFFD4.</summary>
    public static Color Aquamarine => new(0xFF7FFFD4);

    /// <summary>Gets azure, #F0FFFF.</summary>
    public static Color Azure => new(0xFFF0FFFF);

    /// <summary>Gets beige, #F5F5DC.</summary>
    public static Color Beige => new(0xFFF5F5DC);

    /// <summary>Gets bisque, #FFE4C4.</summary>
    public static Color Bisque => new(0xFFFFE4C4);

    /// <summary>Gets black, #000000.</summary>
    public static Color Black => new(0xFF000000);

    /// <summary>Gets blanched almond, #FFEBCD.</summary>
    public static Color BlanchedAlmond => new(0xFFFFEBCD);

    /// <summary>Gets blue, #0000FF.</summary>
    public static Color Blue => new(0xFF0000FF);

    /// <summary>Gets blue violet, #8A2BE2.</summary>
    public static Color BlueViolet => new(0xFF8A2BE2);

    /// <summary>Gets brown, #A52A2A.</summary>
    public static Color Brown => new(0xFFA52A2A);

    /// <summary>Gets burly wood, #DEB887.</summary>
    public static Color BurlyWood => new(0xFFDEB887);

    /// <summary>Gets cadet blue, #5F9EA0.</summary>
    public static Color CadetBlue => new(0xFF5F9EA0);

    /// <summary>Gets chartreuse, #7FFF00.</summary>
    public static Color Chartreuse => new(0xFF7FFF00);

    /// <summary>Gets chocolate, #D2691E.</summary>
    public static Color Chocolate => new(0xFFD2691E);

    /// <summary>Gets coral, #FF7F50.</summary>
    public static Color Coral => new(0xFFFF7F50);

    /// <summary>Gets cornflower blue, #6495ED.</summary>
    public static Color CornflowerBlue => new(0xFF6495ED);

    /// <summary>Gets cornsilk, #FFF8DC.</summary>
    public static Color Cornsilk => new(0xFFFFF8DC);

    /// <summary>Gets crimson, #DC143C.</summary>
    public static Color Crimson => new(0xFFDC143C);

    /// <summary>Gets cyan, #00FFFF.</summary>
    public static Color Cyan => new(0xFF00FFFF);

    /// <summary>Gets dark blue, #00008B.</summary>
    public static Color DarkBlue => new(0xFF00008B);

    /// <summary>Gets dark cyan, #008B8B.</summary>
    public static Color DarkCyan => new(0xFF008B8B);

    /// <summary>Gets dark goldenrod, #B8860B.</summary>
    public static Color DarkGoldenrod => new(0xFFB8860B);

    /// <summary>Gets dark gray, #A9A9A9.</summary>
    public static Color DarkGray => new(0xFFA9A9A9);

    /// <summary>Gets dark green, #006400.</summary>
    public static Color DarkGreen => new(0xFF006400);

    /// <summary>Gets dark khaki, #BDB76B.</summary>
    public static Color DarkKhaki => new(0xFFBDB76B);

    /// <summary>Gets dark magenta, #8B008B.</summary>
    public static Color DarkMagenta => new(0xFF8B008B);

    /// <summary>Gets dark olive green, #556B2F.</summary>
    public static Color DarkOliveGreen => new(0xFF556B2F);

    /// <summary>Gets dark orange, #FF8C00.</summary>
    public static Color DarkOrange => new(0xFFFF8C00);

    /// <summary>Gets dark orchid, #9932CC.</summary>
    public static Color DarkOrchid => new(0xFF9932CC);

    /// <summary>Gets dark red, #8B0000.</summary>
    public static Color DarkRed => new(0xFF8B0000);

    /// <summary>Gets dark salmon, #E9967A.</summary>
    public static Color DarkSalmon => new(0xFFE9967A);

    /// <summary>Gets dark sea green, #8FBC8F.</summary>
    public static Color DarkSeaGreen => new(0xFF8FBC8F);

    /// <summary>Gets dark slate blue, #483D8B.</summary>
    public static Color DarkSlateBlue => new(0xFF483D8B);

    /// <summary>Gets dark slate gray, #2F4F4F.</summary>
    public static Color DarkSlateGray => new(0xFF2F4F4F);

    /// <summary>Gets dark turquoise, #00CED1.</summary>
    public static Color DarkTurquoise => new(0xFF00CED1);

    /// <summary>Gets dark violet, #9400D3.</summary>
    public static Color DarkViolet => new(0xFF9400D3);

    /// <summary>Gets deep pink, #FF1493.</summary>
    public static Color DeepPink => new(0xFFFF1493);

    /// <summary>Gets deep sky blue, #00BFFF.</summary>
    public static Color DeepSkyBlue => new(0xFF00BFFF);

    /// <summary>Gets dim gray, #696969.</summary>
    public static Color DimGray => new(0xFF696969);

    /// <summary>Gets dodger blue, #1E90FF.</summary>
    public static Color DodgerBlue => new(0xFF1E90FF);

    /// <summary>Gets firebrick, #B22222.</summary>
    public static Color Firebrick => new(0xFFB22222);

    /// <summary>Gets floral white, #FFFAF0.</summary>
    public static Color FloralWhite => new(0xFFFFFAF0);

    /// <summary>Gets forest green, #228B22.</summary>
    public static Color ForestGreen => new(0xFF228B22);

    /// <summary>Gets fuchsia, #FF00FF.</summary>
    public static Color Fuchsia => new(0xFFFF00FF);

    /// <summary>Gets gainsboro, #DCDCDC.</summary>
    public static Color Gainsboro => new(0xFFDCDCDC);

    /// <summary>Gets ghost white, #F8F8FF.</summary>
    public static Color GhostWhite => new(0xFFF8F8FF);

    /// <summary>Gets gold, #FFD700.</summary>
    public static Color Gold => new(0xFFFFD700);

    /// <summary>Gets goldenrod, #DAA520.</summary>
    public static Color Goldenrod => new(0xFFDAA520);

    /// <summary>Gets gray, #808080.</summary>
    public static Color Gray => new(0xFF808080);

    /// <summary>Gets green, #008000.</summary>
    public static Color Green => new(0xFF008000);

    /// <summary>Gets green yellow, #ADFF2F.</summary>
    public static Color GreenYellow => new(0xFFADFF2F);

    /// <summary>Gets honeydew, #F0FFF0.</summary>
    public static Color Honeydew => new(0xFFF0FFF0);

    /// <summary>Gets hot pink, #FF69B4.</summary>
    public static Color HotPink => new(0xFFFF69B4);

    /// <summary>Gets indian red, #CD5C5C.</summary>
    public static Color IndianRed => new(0xFFCD5C5C);

    /// <summary>Gets indigo, #4B0082.</summary>
    public static Color Indigo => new(0xFF4B0082);

    /// <summary>Gets ivory, #FFFFF0.</summary>
    public static Color Ivory => new(0xFFFFFFF0);

    /// <summary>Gets khaki, #F0E68C.</summary>
    public static Color Khaki => new(0xFFF0E68C);

    /// <summary>Gets lavender, #E6E6FA.</summary>
    public static Color Lavender => new(0xFFE6E6FA);

    /// <summary>Gets lavender blush, #FFF0F5.</summary>
    public static Color LavenderBlush => new(0xFFFFF0F5);

    /// <summary>Gets lawn green, #7CFC00.</summary>
    public static Color LawnGreen => new(0xFF7CFC00);

    /// <summary>Gets lemon chiffon, #FFFACD.</summary>
    public static Color LemonChiffon => new(0xFFFFFACD);

    /// <summary>Gets light blue, #ADD8E6.</summary>
    public static Color LightBlue => new(0xFFADD8E6);

    /// <summary>Gets light coral, #F08080.</summary>
    public static Color LightCoral => new(0xFFF08080);

    /// <summary>Gets light cyan, #E0FFFF.</summary>
    public static Color LightCyan => new(0xFFE0FFFF);

    /// <summary>Gets light goldenrod yellow, #FAFAD2.</summary>
    public static Color LightGoldenrodYellow => new(0xFFFAFAD2);

    /// <summary>Gets light gray, #D3D3D3.</summary>
    public static Color LightGray => new(0xFFD3D3D3);

    /// <summary>Gets light green, #90EE90.</summary>
    public static Color LightGreen => new(0xFF90EE90);

    /// <summary>Gets light pink, #FFB6C1.</summary>
    public static Color LightPink => new(0xFFFFB6C1);

    /// <summary>Gets light salmon, #FFA07A.</summary>
    public static Color LightSalmon => new(0xFFFFA07A);

    /// <summary>Gets light sea green, #20B2AA.</summary>
    public static Color LightSeaGreen => new(0xFF20B2AA);

    /// <summary>Gets light sky blue, #87CEFA.</summary>
    public static Color LightSkyBlue => new(0xFF87CEFA);

    /// <summary>Gets light slate gray, #778899.</summary>
    public static Color LightSlateGray => new(0xFF778899);

    /// <summary>Gets light steel blue, #B0C4DE.</summary>
    public static Color LightSteelBlue => new(0xFFB0C4DE);

    /// <summary>Gets light yellow, #FFFFE0.</summary>
    public static Color LightYellow => new(0xFFFFFFE0);

    /// <summary>Gets lime, #00FF00.</summary>
    public static Color Lime => new(0xFF00FF00);

    /// <summary>Gets lime green, #32CD32.</summary>
    public static Color LimeGreen => new(0xFF32CD32);

    /// <summary>Gets linen, #FAF0E6.</summary>
    public static Color Linen => new(0xFFFAF0E6);

    /// <summary>Gets magenta, #FF00FF.</summary>
    public static Color Magenta => new(0xFFFF00FF);

    /// <summary>Gets maroon, #800000.</summary>
    public static Color Maroon => new(0xFF800000);

    /// <summary>Gets medium aquamarine, #66CDAA.</summary>
    public static Color MediumAquamarine => new(0xFF66CDAA);

    /// <summary>Gets medium blue, #0000CD.</summary>
    public static Color MediumBlue => new(0xFF0000CD);

    /// <summary>Gets medium orchid, #BA55D3.</summary>
    public static Color MediumOrchid => new(0xFFBA55D3);

    /// <summary>Gets medium purple, #9370DB.</summary>
    public static Color MediumPurple => new(0xFF9370DB);

    /// <summary>Gets medium sea green, #3CB371.</summary>
    public static Color MediumSeaGreen => new(0xFF3CB371);

    /// <summary>Gets medium slate blue, #7B68EE.</summary>
    public static Color MediumSlateBlue => new(0xFF7B68EE);

    /// <summary>Gets medium spring green, #00FA9A.</summary>
    public static Color MediumSpringGreen => new(0xFF00FA9A);

    /// <summary>Gets medium turquoise, #48D1CC.</summary>
    public static Color MediumTurquoise => new(0xFF48D1CC);

    /// <summary>Gets medium violet red, #C71585.</summary>
    public static Color MediumVioletRed => new(0xFFC71585);

    /// <summary>Gets midnight blue, #191970.</summary>
    public static Color MidnightBlue => new(0xFF191970);

    /// <summary>Gets mint cream, #F5FFFA.</summary>
    public static Color MintCream => new(0xFFF5FFFA);

    /// <summary>Gets misty rose, #FFE4E1.</summary>
    public static Color MistyRose => new(0xFFFFE4E1);

    /// <summary>Gets moccasin, #FFE4B5.</summary>
    public static Color Moccasin => new(0xFFFFE4B5);

    /// <summary>Gets navajo white, #FFDEAD.</summary>
    public static Color NavajoWhite => new(0xFFFFDEAD);

    /// <summary>Gets navy, #000080.</summary>
    public static Color Navy => new(0xFF000080);

    /// <summary>Gets old lace, #FDF5E6.</summary>
    public static Color OldLace => new(0xFFFDF5E6);

    /// <summary>Gets olive, #808000.</summary>
    public static Color Olive => new(0xFF808000);

    /// <summary>Gets olive drab, #6B8E23.</summary>
    public static Color OliveDrab => new(0xFF6B8E23);

    /// <summary>Gets orange, #FFA500.</summary>
    public static Color Orange => new(0xFFFFA500);

    /// <summary>Gets orange red, #FF4500.</summary>
    public static Color OrangeRed => new(0xFFFF4500);

    /// <summary>Gets orchid, #DA70D6.</summary>
    public static Color Orchid => new(0xFFDA70D6);

    /// <summary>Gets pale goldenrod, #EEE8AA.</summary>
    public static Color PaleGoldenrod => new(0xFFEEE8AA);

    /// <summary>Gets pale green, #98FB98.</summary>
    public static Color PaleGreen => new(0xFF98FB98);

    /// <summary>Gets pale turquoise, #AFEEEE.</summary>
    public static Color PaleTurquoise => new(0xFFAFEEEE);

    /// <summary>Gets pale violet red, #DB7093.</summary>
    public static Color PaleVioletRed => new(0xFFDB7093);

    /// <summary>Gets papaya whip, #FFEFD5.</summary>
    public static Color PapayaWhip => new(0xFFFFEFD5);

    /// <summary>Gets peach puff, #FFDAB9.</summary>
    public static Color PeachPuff => new(0xFFFFDAB9);

    /// <summary>Gets peru, #CD853F.</summary>
    public static Color Peru => new(0xFFCD853F);

    /// <summary>Gets pink, #FFC0CB.</summary>
    public static Color Pink => new(0xFFFFC0CB);

    /// <summary>Gets plum, #DDA0DD.</summary>
    public static Color Plum => new(0xFFDDA0DD);

    /// <summary>Gets powder blue, #B0E0E6.</summary>
    public static Color PowderBlue => new(0xFFB0E0E6);

    /// <summary>Gets purple, #800080.</summary>
    public static Color Purple => new(0xFF800080);

    /// <summary>Gets red, #FF0000.</summary>
    public static Color Red => new(0xFFFF0000);

    /// <summary>Gets rosy brown, #BC8F8F.</summary>
    public static Color RosyBrown => new(0xFFBC8F8F);

    /// <summary>Gets royal blue, #4169E1.</summary>
    public static Color RoyalBlue => new(0xFF4169E1);

    /// <summary>Gets saddle brown, #8B4513.</summary>
    public static Color SaddleBrown => new(0xFF8B4513);

    /// <summary>Gets salmon, #FA8072.</summary>
    public static Color Salmon => new(0xFFFA8072);

    /// <summary>Gets sandy brown, #F4A460.</summary>
    public static Color SandyBrown => new(0xFFF4A460);

    /// <summary>Gets sea green, #2E8B57.</summary>
    public static Color SeaGreen => new(0xFF2E8B57);

    /// <summary>Gets sea shell, #FFF5EE.</summary>
    public static Color SeaShell => new(0xFFFFF5EE);

    /// <summary>Gets sienna, #A0522D.</summary>
    public static Color Sienna => new(0xFFA0522D);

    /// <summary>Gets silver, #C0C0C0.</summary>
    public static Color Silver => new(0xFFC0C0C0);

    /// <summary>Gets sky blue, #87CEEB.</summary>
    public static Color SkyBlue => new(0xFF87CEEB);

    /// <summary>Gets slate blue, #6A5ACD.</summary>
    public static Color SlateBlue => new(0xFF6A5ACD);

    /// <summary>Gets slate gray, #708090.</summary>
    public static Color SlateGray => new(0xFF708090);

    /// <summary>Gets snow, #FFFAFA.</summary>
    public static Color Snow => new(0xFFFFFAFA);

    /// <summary>Gets spring green, #00FF7F.</summary>
    public static Color SpringGreen => new(0xFF00FF7F);

    /// <summary>Gets steel blue, #4682B4.</summary>
    public static Color SteelBlue => new(0xFF4682B4);

    /// <summary>Gets tan, #D2B48C.</summary>
    public static Color Tan => new(0xFFD2B48C);

    /// <summary>Gets teal, #008080.</summary>
    public static Color Teal => new(0xFF008080);

    /// <summary>Gets thistle, #D8BFD8.</summary>
    public static Color Thistle => new(0xFFD8BFD8);

    /// <summary>Gets tomato, #FF6347.</summary>
    public static Color Tomato => new(0xFFFF6347);

    /// <summary>Gets turquoise, #40E0D0.</summary>
    public static Color Turquoise => new(0xFF40E0D0);

    /// <summary>Gets violet, #EE82EE.</summary>
    public static Color Violet => new(0xFFEE82EE);

    /// <summary>Gets wheat, #F5DEB3.</summary>
    public static Color Wheat => new(0xFFF5DEB3);

    /// <summary>Gets white, #FFFFFF.</summary>
    public static Color White => new(0xFFFFFFFF);

    /// <summary>Gets white smoke, #F5F5F5.</summary>
    public static Color WhiteSmoke => new(0xFFF5F5F5);

    /// <summary>Gets yellow, #FFFF00.</summary>
    public static Color Yellow => new(0xFFFFFF00);

    /// <summary>Gets yellow green, #9ACD32.</summary>
    public static Color YellowGreen => new(0xFF9ACD32);

    /// <summary>The names that <see cref="Name"/> gives and <see cref="FromName"/> takes; of two names of one value
    /// the first.</summary>
    private static readonly (string Name, uint Argb)[] KnownNames =
    [
        ("Transparent", 0x00FFFFFF),
        ("AliceBlue", 0xFFF0F8FF),
        ("AntiqueWhite", 0xFFFAEBD7),
        ("Aqua", 0xFF00FFFF),
        ("Aquamarine", 0xFF7FFFD4),
        ("Azure", 0xFFF0FFFF),
        ("Beige", 0xFFF5F5DC),
        ("Bisque", 0xFFFFE4C4),
        ("Black", 0xFF000000),
        ("BlanchedAlmond", 0xFFFFEBCD),
        ("Blue", 0xFF0000FF),
        ("BlueViolet", 0xFF8A2BE2),
        ("Brown", 0xFFA52A2A),
        ("BurlyWood", 0xFFDEB887),
        ("CadetBlue", 0xFF5F9EA0),
        ("Chartreuse", 0xFF7FFF00),
        ("Chocolate", 0xFFD2691E),
        ("Coral", 0xFFFF7F50),
        ("CornflowerBlue", 0xFF6495ED),
        ("Cornsilk", 0xFFFFF8DC),
        ("Crimson", 0xFFDC143C),
        ("Cyan", 0xFF00FFFF),
        ("DarkBlue", 0xFF00008B),
        ("DarkCyan", 0xFF008B8B),
        ("DarkGoldenrod", 0xFFB8860B),
        ("DarkGray", 0xFFA9A9A9),
        ("DarkGreen", 0xFF006400),
        ("DarkKhaki", 0xFFBDB76B),
        ("DarkMagenta", 0xFF8B008B),
        ("DarkOliveGreen", 0xFF556B2F),
        ("DarkOrange", 0xFFFF8C00),
        ("DarkOrchid", 0xFF9932CC),
        ("DarkRed", 0xFF8B0000),
        ("DarkSalmon", 0xFFE9967A),
        ("DarkSeaGreen", 0xFF8FBC8F),
        ("DarkSlateBlue", 0xFF483D8B),
        ("DarkSlateGray", 0xFF2F4F4F),
        ("DarkTurquoise", 0xFF00CED1),
        ("DarkViolet", 0xFF9400D3),
        ("DeepPink", 0xFFFF1493),
        ("DeepSkyBlue", 0xFF00BFFF),
        ("DimGray", 0xFF696969),
        ("DodgerBlue", 0xFF1E90FF),
        ("Firebrick", 0xFFB22222),
        ("FloralWhite", 0xFFFFFAF0),
        ("ForestGreen", 0xFF228B22),
        ("Fuchsia", 0xFFFF00FF),
        ("Gainsboro", 0xFFDCDCDC),
        ("GhostWhite", 0xFFF8F8FF),
        ("Gold", 0xFFFFD700),
        ("Goldenrod", 0xFFDAA520),
        ("Gray", 0xFF808080),
        ("Green", 0xFF008000),
        ("GreenYellow", 0xFFADFF2F),
        ("Honeydew", 0xFFF0FFF0),
        ("HotPink", 0xFFFF69B4),
        ("IndianRed", 0xFFCD5C5C),
        ("Indigo", 0xFF4B0082),
        ("Ivory", 0xFFFFFFF0),
        ("Khaki", 0xFFF0E68C),
        ("Lavender", 0xFFE6E6FA),
        ("LavenderBlush", 0xFFFFF0F5),
        ("LawnGreen", 0xFF7CFC00),
        ("LemonChiffon", 0xFFFFFACD),
        ("LightBlue", 0xFFADD8E6),
        ("LightCoral", 0xFFF08080),
        ("LightCyan", 0xFFE0FFFF),
        ("LightGoldenrodYellow", 0xFFFAFAD2),
        ("LightGray", 0xFFD3D3D3),
        ("LightGreen", 0xFF90EE90),
        ("LightPink", 0xFFFFB6C1),
        ("LightSalmon", 0xFFFFA07A),
        ("LightSeaGreen", 0xFF20B2AA),
        ("LightSkyBlue", 0xFF87CEFA),
        ("LightSlateGray", 0xFF778899),
        ("LightSteelBlue", 0xFFB0C4DE),
        ("LightYellow", 0xFFFFFFE0),
        ("Lime", 0xFF00FF00),
        ("LimeGreen", 0xFF32CD32),
        ("Linen", 0xFFFAF0E6),
        ("Magenta", 0xFFFF00FF),
        ("Maroon", 0xFF800000),
        ("MediumAquamarine", 0xFF66CDAA),
        ("MediumBlue", 0xFF0000CD),
        ("MediumOrchid", 0xFFBA55D3),
        ("MediumPurple", 0xFF9370DB),
        ("MediumSeaGreen", 0xFF3CB371),
        ("MediumSlateBlue", 0xFF7B68EE),
        ("MediumSpringGreen", 0xFF00FA9A),
        ("MediumTurquoise", 0xFF48D1CC),
        ("MediumVioletRed", 0xFFC71585),
        ("MidnightBlue", 0xFF191970),
        ("MintCream", 0xFFF5FFFA),
        ("MistyRose", 0xFFFFE4E1),
        ("Moccasin", 0xFFFFE4B5),
        ("NavajoWhite", 0xFFFFDEAD),
        ("Navy", 0xFF000080),
        ("OldLace", 0xFFFDF5E6),
        ("Olive", 0xFF808000),
        ("OliveDrab", 0xFF6B8E23),
        ("Orange", 0xFFFFA500),
        ("OrangeRed", 0xFFFF4500),
        ("Orchid", 0xFFDA70D6),
        ("PaleGoldenrod", 0xFFEEE8AA),
        ("PaleGreen", 0xFF98FB98),
        ("PaleTurquoise", 0xFFAFEEEE),
        ("PaleVioletRed", 0xFFDB7093),
        ("PapayaWhip", 0xFFFFEFD5),
        ("PeachPuff", 0xFFFFDAB9),
        ("Peru", 0xFFCD853F),
        ("Pink", 0xFFFFC0CB),
        ("Plum", 0xFFDDA0DD),
        ("PowderBlue", 0xFFB0E0E6),
        ("Purple", 0xFF800080),
        ("Red", 0xFFFF0000),
        ("RosyBrown", 0xFFBC8F8F),
        ("RoyalBlue", 0xFF4169E1),
        ("SaddleBrown", 0xFF8B4513),
        ("Salmon", 0xFFFA8072),
        ("SandyBrown", 0xFFF4A460),
        ("SeaGreen", 0xFF2E8B57),
        ("SeaShell", 0xFFFFF5EE),
        ("Sienna", 0xFFA0522D),
        ("Silver", 0xFFC0C0C0),
        ("SkyBlue", 0xFF87CEEB),
        ("SlateBlue", 0xFF6A5ACD),
        ("SlateGray", 0xFF708090),
        ("Snow", 0xFFFFFAFA),
        ("SpringGreen", 0xFF00FF7F),
        ("SteelBlue", 0xFF4682B4),
        ("Tan", 0xFFD2B48C),
        ("Teal", 0xFF008080),
        ("Thistle", 0xFFD8BFD8),
        ("Tomato", 0xFFFF6347),
        ("Turquoise", 0xFF40E0D0),
        ("Violet", 0xFFEE82EE),
        ("Wheat", 0xFFF5DEB3),
        ("White", 0xFFFFFFFF),
        ("WhiteSmoke", 0xFFF5F5F5),
        ("Yellow", 0xFFFFFF00),
        ("YellowGreen", 0xFF9ACD32),
    ];
}
