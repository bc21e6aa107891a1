using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>Maps font names of metafiles, in which style and family are one word, to installed fonts.</summary>
internal static class FontNames
{
    /// <summary>Font families by the prefixes of their names, without regard to case, spaces and punctuation.</summary>
    private static readonly (string Prefix, string Family)[] Families =
    [
        ("helvetica", "Helvetica"), ("arial", "Arial"), ("swiss", "Helvetica"), ("univers", "Helvetica"),
        ("times", "Times New Roman"), ("dutch", "Times New Roman"), ("courier", "Courier New"),
        ("monospac", "Courier New"), ("newcenturyschlbk", "C059"), ("newcenturyschoolbook", "C059"),
        ("palatino", "P052"), ("bookman", "URW Bookman"), ("avantgarde", "URW Gothic"), ("zapfchancery", "Z003"),
        ("zapfdingbats", "D050000L"), ("symbol", "Standard Symbols PS"),
    ];

    /// <summary>Common stroke fonts and the nearest outline fonts.</summary>
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

    /// <summary>The font for a name such as "HELVETICA_BOLD_OBLIQUE", "Times-Italic" or "Courier New Bold".</summary>
    internal static FontSpec Find(string name)
    {
        string key = KeyOf(name);
        if (key.Length == 0)
        {
            return FontSpec.Default;
        }

        if (StrokeFonts.TryGetValue(key, out FontSpec stroke))
        {
            return stroke;
        }

        bool bold = Has("bold") || Has("demi");
        bool italic = Has("italic") || Has("oblique");
        foreach ((string prefix, string family) in Families)
        {
            if (key.StartsWith(prefix, StringComparison.Ordinal))
            {
                return FontTable.FromFamily(family, bold, italic);
            }
        }

        return FontTable.FromFamily(WithoutStyle(name), bold, italic);

        bool Has(string style) => key.Contains(style, StringComparison.Ordinal);
    }

    private static string KeyOf(string name)
    {
        Span<char> kept = name.Length <= 256 ? stackalloc char[name.Length] : new char[name.Length];
        int count = 0;
        foreach (char character in name)
        {
            if (char.IsLetterOrDigit(character))
            {
                kept[count++] = char.ToLowerInvariant(character);
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
