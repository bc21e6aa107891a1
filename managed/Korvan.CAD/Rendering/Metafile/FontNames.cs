using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>Leads from the font names of metafiles, in which style and family are one word, to installed faces.</summary>
internal static class FontNames
{
    /// <summary>Families by what their names begin with, without regard to case, spaces and signs.</summary>
    private static readonly (string Begin, string Family)[] Families =
    [
        ("helvetica", "Helvetica"), ("arial", "Arial"), ("swiss", "Helvetica"), ("univers", "Helvetica"),
        ("times", "Times New Roman"), ("dutch", "Times New Roman"), ("courier", "Courier New"), ("monospac", "Courier New"),
        ("newcenturyschlbk", "C059"), ("newcenturyschoolbook", "C059"), ("palatino", "P052"), ("bookman", "URW Bookman"),
        ("avantgarde", "URW Gothic"), ("zapfchancery", "Z003"), ("zapfdingbats", "D050000L"), ("symbol", "Standard Symbols PS"),
    ];

    /// <summary>Stroke fonts that many writers name; the nearest outline face stands in for each.</summary>
    private static readonly Dictionary<string, FontSpec> StrokeFonts = new(StringComparer.Ordinal)
    {
        ["hersheycartographicroman"] = FontTable.FromFamily("Helvetica", false, false),
        ["hersheysimplexroman"] = FontTable.FromFamily("Helvetica", false, false),
        ["hersheysimplexscript"] = FontTable.FromFile("scripts"),
        ["hersheyduplexroman"] = FontTable.FromFamily("Helvetica", true, false),
        ["hersheycomplexroman"] = FontTable.FromFamily("Times New Roman", false, false),
        ["hersheycomplexitalic"] = FontTable.FromFamily("Times New Roman", false, true),
        ["hersheycomplexscript"] = FontTable.FromFile("scriptc"),
        ["hersheytriplexroman"] = FontTable.FromFamily("Times New Roman", true, false),
        ["hersheytriplexitalic"] = FontTable.FromFamily("Times New Roman", true, true),
        ["hersheygothicenglish"] = FontTable.FromFile("gothice"),
        ["hersheygothicgerman"] = FontTable.FromFile("gothicg"),
        ["hersheygothicitalian"] = FontTable.FromFile("gothici"),
    };

    /// <summary>The face for a name such as "HELVETICA_BOLD_OBLIQUE", "Times-Italic" or "Courier New Bold".</summary>
    internal static FontSpec Find(string name)
    {
        string word = Letters(name);
        if (word.Length == 0)
        {
            return FontSpec.Default;
        }

        if (StrokeFonts.TryGetValue(word, out FontSpec stroke))
        {
            return stroke;
        }

        bool bold = word.Contains("bold", StringComparison.Ordinal) || word.Contains("demi", StringComparison.Ordinal);
        bool italic = word.Contains("italic", StringComparison.Ordinal) || word.Contains("oblique", StringComparison.Ordinal);
        foreach ((string begin, string family) in Families)
        {
            if (word.StartsWith(begin, StringComparison.Ordinal))
            {
                return FontTable.FromFamily(family, bold, italic);
            }
        }

        return FontTable.FromFamily(WithoutStyle(name), bold, italic);
    }

    private static string Letters(string name)
    {
        Span<char> kept = name.Length <= 256 ? stackalloc char[name.Length] : new char[name.Length];
        int count = 0;
        foreach (char letter in name)
        {
            if (char.IsLetterOrDigit(letter))
            {
                kept[count++] = char.ToLowerInvariant(letter);
            }
        }

        return new string(kept[..count]);
    }

    private static string WithoutStyle(string name)
    {
        string family = name.Replace('_', ' ').Replace('-', ' ');
        foreach (string style in new[] { "Bold", "Italic", "Oblique", "Regular", "Roman", "Demi" })
        {
            family = family.Replace(style, "", StringComparison.OrdinalIgnoreCase);
        }

        family = family.Trim();
        return family.Length > 0 ? family : name;
    }
}
