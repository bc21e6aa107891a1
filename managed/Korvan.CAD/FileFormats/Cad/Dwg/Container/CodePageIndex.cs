using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>The numbers of code pages in file headers.</summary>
internal static class CodePageIndex
{
    /// <summary>The number of ANSI_1252.</summary>
    internal const int Default = 30;

    private static readonly string[] Names =
    [
        "ANSI_1252", "ASCII", "ISO8859-1", "ISO8859-2", "ISO8859-3", "ISO8859-4", "ISO8859-5", "ISO8859-6",
        "ISO8859-7", "ISO8859-8", "ISO8859-9", "DOS437", "DOS850", "DOS852", "DOS855", "DOS857", "DOS860", "DOS861",
        "DOS863", "DOS864", "DOS865", "DOS869", "DOS932", "MACINTOSH", "BIG5", "KSC5601", "JOHAB", "DOS866",
        "ANSI_1250", "ANSI_1251", "ANSI_1252", "GB2312", "ANSI_1253", "ANSI_1254", "ANSI_1255", "ANSI_1256",
        "ANSI_1257", "ANSI_874", "ANSI_932", "ANSI_936", "ANSI_949", "ANSI_950", "ANSI_1361", "ANSI_1200",
        "ANSI_1258",
    ];

    /// <summary>Returns the name as in $DWGCODEPAGE.</summary>
    internal static string NameOf(int index) => index > 0 && index < Names.Length ? Names[index] : Names[Default];

    /// <summary>Returns the number of a name; <see cref="Default"/> for an unknown one.</summary>
    internal static int IndexOf(string name)
    {
        string plain = name.Trim().Replace('-', '_').ToUpperInvariant();
        int index = Array.FindIndex(Names, 1, one => one.Replace('-', '_') == plain);
        return index < 0 ? Default : index;
    }
}
