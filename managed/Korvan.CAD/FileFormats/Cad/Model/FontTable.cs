using System;
using System.Collections.Generic;
using System.IO;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Leads from the font names of drawings to families that are installed.</summary>
internal static class FontTable
{
    private const string Sans = "Liberation Sans,DejaVu Sans";
    private const string Serif = "Liberation Serif,DejaVu Serif";
    private const string Mono = "Liberation Mono,DejaVu Sans Mono";
    private const string Script = "Z003,URW Chancery L,Liberation Serif";

    /// <summary>Stroke fonts by file name; each gets the outline face that is nearest in style and width.</summary>
    private static readonly Dictionary<string, FontSpec> StrokeFonts = new(StringComparer.OrdinalIgnoreCase)
    {
        ["txt"] = new(Sans),
        ["simplex"] = new(Sans),
        ["romans"] = new(Sans),
        ["romand"] = new(Sans, Bold: true),
        ["romanc"] = new(Serif),
        ["romant"] = new(Serif, Bold: true),
        ["complex"] = new(Serif),
        ["italic"] = new(Serif, Italic: true),
        ["italicc"] = new(Serif, Italic: true),
        ["italict"] = new(Serif, Bold: true, Italic: true),
        ["scripts"] = new(Script, Italic: true),
        ["scriptc"] = new(Script, Italic: true),
        ["gothice"] = new(Serif, Bold: true),
        ["gothicg"] = new(Serif, Bold: true),
        ["gothici"] = new(Serif, Bold: true),
        ["greeks"] = new(Sans),
        ["greekc"] = new(Serif),
        ["monotxt"] = new(Mono),
        ["isocp"] = new("ISOCP,ISOCPEUR," + Sans),
        ["isocp2"] = new("ISOCP2,ISOCPEUR," + Sans),
        ["isocp3"] = new("ISOCP3,ISOCPEUR," + Sans),
        ["isoct"] = new("ISOCT,ISOCTEUR," + Sans),
        ["isoct2"] = new("ISOCT2,ISOCTEUR," + Sans),
        ["isoct3"] = new("ISOCT3,ISOCTEUR," + Sans),
        ["gdt"] = new("DejaVu Sans," + Sans),
        ["amgdt"] = new("DejaVu Sans," + Sans),
        ["ltypeshp"] = new(Sans),
    };

    /// <summary>Files of outline fonts whose name does not tell the family.</summary>
    private static readonly Dictionary<string, FontSpec> OutlineFiles = new(StringComparer.OrdinalIgnoreCase)
    {
        ["arial"] = new("Arial," + Sans),
        ["arialbd"] = new("Arial," + Sans, Bold: true),
        ["ariali"] = new("Arial," + Sans, Italic: true),
        ["arialbi"] = new("Arial," + Sans, Bold: true, Italic: true),
        ["arialn"] = new("Arial Narrow,Liberation Sans Narrow," + Sans),
        ["arialnb"] = new("Arial Narrow,Liberation Sans Narrow," + Sans, Bold: true),
        ["arialnarrow"] = new("Arial Narrow,Liberation Sans Narrow," + Sans),
        ["times"] = new("Times New Roman," + Serif),
        ["timesbd"] = new("Times New Roman," + Serif, Bold: true),
        ["timesi"] = new("Times New Roman," + Serif, Italic: true),
        ["timesbi"] = new("Times New Roman," + Serif, Bold: true, Italic: true),
        ["cour"] = new("Courier New," + Mono),
        ["courbd"] = new("Courier New," + Mono, Bold: true),
        ["verdana"] = new("Verdana,DejaVu Sans"),
        ["tahoma"] = new("Tahoma,DejaVu Sans"),
        ["calibri"] = new("Calibri,Carlito," + Sans),
        ["cambria"] = new("Cambria,Caladea," + Serif),
        ["swissl"] = new("Swis721 Lt BT,Helvetica," + Sans),
        ["swiss"] = new("Swis721 BT,Helvetica," + Sans),
        ["swissb"] = new("Swis721 BT,Helvetica," + Sans, Bold: true),
        ["dutch"] = new("Dutch801 Rm BT,Times," + Serif),
        ["monos"] = new("Monospac821 BT,Courier," + Mono),
        ["symbol"] = new("Symbol,Standard Symbols PS,DejaVu Sans"),
    };

    private static Dictionary<string, string>? _installedFiles;
    private static HashSet<string>? _installedFamilies;

    // Tables may be read before there is a text engine: a list without fonts is not final.
    private static Dictionary<string, string> InstalledFiles =>
        _installedFiles is { Count: > 0 } known ? known : _installedFiles = ReadInstalledFiles();

    private static HashSet<string> InstalledFamilies => _installedFamilies is { Count: > 0 } known
        ? known
        : _installedFamilies = new HashSet<string>(InstalledFiles.Values, StringComparer.OrdinalIgnoreCase);

    /// <summary>Gets or sets what lists the font files that are installed, with their families; the text engine knows
    /// them.</summary>
    internal static Func<IEnumerable<(string File, string Family)>> ListInstalled { get; set; } = static () => [];

    /// <summary>The symbol fonts in which small letters stand for geometric tolerance signs.</summary>
    internal static bool IsToleranceSymbolFont(string file) =>
        Stem(file) is "gdt" or "amgdt" or "amgdtans" or "gdt___";

    /// <summary>The face for a font file as style tables and inline codes name it ("romans.shx", "arial.ttf",
    /// "txt").</summary>
    internal static FontSpec FromFile(string? file)
    {
        if (string.IsNullOrWhiteSpace(file))
        {
            return FontSpec.Default;
        }

        string stem = Stem(file);
        if (IsToleranceSymbolFont(file))
        {
            return StrokeFonts["gdt"] with { Stroke = "gdt" };
        }

        if (!IsOutlineFile(file))
        {
            FontSpec nearest = StrokeFonts.TryGetValue(stem, out FontSpec stroke) ? stroke : FontSpec.Default;
            return nearest with { Stroke = stem };
        }

        if (OutlineFiles.TryGetValue(stem, out FontSpec known))
        {
            return known;
        }

        return InstalledFiles.TryGetValue(stem, out string? family)
            ? new FontSpec(family + "," + Sans)
            : new FontSpec(Path.GetFileNameWithoutExtension(file) + "," + Sans);
    }

    /// <summary>Determines whether a family is installed.</summary>
    internal static bool IsInstalled(string family) => InstalledFamilies.Contains(family);

    /// <summary>Returns the family of an installed file; null where it is not known.</summary>
    internal static string? FamilyOf(string file) =>
        InstalledFiles.GetValueOrDefault(Path.GetFileNameWithoutExtension(file));

    /// <summary>Determines whether a name is that of a common stroke font.</summary>
    internal static bool IsStrokeFont(string name) => StrokeFonts.ContainsKey(name);

    /// <summary>Returns the name of a font file without folder and extension; empty for none.</summary>
    internal static string NameOf(string file) => string.IsNullOrWhiteSpace(file) ? "" : Stem(file);

    /// <summary>The face for a bare name, which may be a stroke font without its extension or a family.</summary>
    internal static FontSpec FromName(string name) =>
        name.Contains('.') || StrokeFonts.ContainsKey(name) ? FromFile(name) : FromFamily(name, false, false);

    /// <summary>The face for a family name of an outline font ("Arial", "Times New Roman").</summary>
    internal static FontSpec FromFamily(string? family, bool bold, bool italic)
    {
        if (string.IsNullOrWhiteSpace(family))
        {
            return FontSpec.Default with { Bold = bold, Italic = italic };
        }

        if (family.EndsWith(".shx", StringComparison.OrdinalIgnoreCase) || IsOutlineFile(family))
        {
            FontSpec named = FromFile(family);
            return named with { Bold = named.Bold || bold, Italic = named.Italic || italic };
        }

        string safe = family.Replace(',', ' ').Trim().TrimStart('@');
        return new FontSpec(safe + "," + Sans, bold, italic);
    }

    private static bool IsOutlineFile(string file) =>
        file.EndsWith(".ttf", StringComparison.OrdinalIgnoreCase)
        || file.EndsWith(".otf", StringComparison.OrdinalIgnoreCase)
        || file.EndsWith(".ttc", StringComparison.OrdinalIgnoreCase)
        || file.EndsWith(".pfb", StringComparison.OrdinalIgnoreCase);

    private static string Stem(string file)
    {
        int slash = file.LastIndexOfAny(['/', '\\']);
        return Path.GetFileNameWithoutExtension(file[(slash + 1)..].Trim()).ToLowerInvariant();
    }

    private static Dictionary<string, string> ReadInstalledFiles()
    {
        var result = new Dictionary<string, string>(StringComparer.OrdinalIgnoreCase);
        List<string> files = [], families = [];
        foreach ((string file, string family) in ListInstalled())
        {
            files.Add(file);
            families.Add(family);
        }

        string[] sorted = [.. families];
        Array.Sort(files.ToArray(), sorted, StringComparer.Ordinal);
        files.Sort(StringComparer.Ordinal);
        for (int i = 0; i < sorted.Length; i++)
        {
            result.TryAdd(Path.GetFileNameWithoutExtension(files[i]), sorted[i]);
        }

        return result;
    }
}
