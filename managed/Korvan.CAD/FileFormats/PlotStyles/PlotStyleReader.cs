using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.IO.Compression;
using System.Text;

namespace Korvan.CAD.FileFormats.PlotStyles;

/// <summary>
/// Reads tables of plot styles. After a line with version and kind, the name of the compression and three numbers comes
/// a zlib stream of text: values as "name=value" and sections in braces, one to a line. A value that begins with a
/// quotation mark is a string up to the end of its line.
/// </summary>
internal static class PlotStyleReader
{
    private const int HeaderLength = 60;
    private const int MaxLength = 4 << 20;
    private const string Styles = "plot_style";
    private const string Weights = "custom_lineweight_table";

    private const int GrayscalePolicy = 2;

    // The colour of objects.
    private const uint ObjectColor = 0xc3ffffff;
    private const uint Rgb = 0xffffff;

    private static ReadOnlySpan<byte> Signature => "PIAFILEVERSION_2.0,"u8;

    private static ReadOnlySpan<byte> NamedKind => "STBVER"u8;

    /// <summary>Reads a table.</summary>
    /// <returns>The table; null for data that is none.</returns>
    internal static PlotStyleTable? Read(byte[] data)
    {
        if (data.Length <= HeaderLength || !data.AsSpan().StartsWith(Signature) || Text(data) is not string text)
        {
            return null;
        }

        bool isNamed = data.AsSpan(Signature.Length).StartsWith(NamedKind);
        Dictionary<string, Dictionary<string, string>> sections = Sections(text);
        sections.TryGetValue(Weights, out Dictionary<string, string>? weights);
        double scale = PatternScale(sections.GetValueOrDefault(""));
        var table = new PlotStyleTable(isNamed);
        foreach ((string path, Dictionary<string, string> values) in sections)
        {
            if (!path.StartsWith(Styles + "/", StringComparison.Ordinal))
            {
                continue;
            }

            PlotStyle style = Style(values, weights) with { PatternScale = scale };
            if (isNamed)
            {
                table.Add(style);
            }
            else if (int.TryParse(path.AsSpan(Styles.Length + 1), out int index))
            {
                table.Add(index + 1, style);
            }
        }

        return table;
    }

    private static string? Text(byte[] data)
    {
        try
        {
            using var packed = new MemoryStream(data, HeaderLength, data.Length - HeaderLength);
            using var inflated = new ZLibStream(packed, CompressionMode.Decompress);
            byte[] text = new byte[MaxLength];
            int length = inflated.ReadAtLeast(text, MaxLength, throwOnEndOfStream: false);
            return Encoding.Latin1.GetString(text, 0, length);
        }
        catch (InvalidDataException)
        {
            return null;
        }
    }

    /// <summary>The values of each section, by the names of the sections around it with slashes between.</summary>
    private static Dictionary<string, Dictionary<string, string>> Sections(string text)
    {
        var sections = new Dictionary<string, Dictionary<string, string>>(StringComparer.Ordinal);
        string path = "";
        foreach (ReadOnlySpan<char> line in text.AsSpan().EnumerateLines())
        {
            Budget.Step();
            ReadOnlySpan<char> trimmed = line.Trim();
            int equals = trimmed.IndexOf('=');
            if (equals > 0)
            {
                if (!sections.TryGetValue(path, out Dictionary<string, string>? values))
                {
                    sections.Add(path, values = new Dictionary<string, string>(StringComparer.Ordinal));
                }

                values[trimmed[..equals].ToString()] = trimmed[(equals + 1)..].TrimStart('"').ToString();
            }
            else if (trimmed.EndsWith("{"))
            {
                string name = trimmed[..^1].ToString();
                path = path.Length == 0 ? name : path.Length < MaxLength / 64 ? path + "/" + name : path;
            }
            else if (trimmed is "}")
            {
                path = path[..Math.Max(0, path.LastIndexOf('/'))];
            }
        }

        return sections;
    }

    private static PlotStyle Style(Dictionary<string, string> values, Dictionary<string, string>? weights)
    {
        int Int(string name, int missing) =>
            int.TryParse(values.GetValueOrDefault(name), CultureInfo.InvariantCulture, out int value) ? value : missing;

        // A colour of its own stands as the mode, since the colour may be the nearest one of a table.
        uint color = unchecked((uint)Int("color", -1));
        bool isOwn = color is not (ObjectColor or uint.MaxValue);
        uint mode = unchecked((uint)Int("mode_color", (int)color));
        return new PlotStyle(values.GetValueOrDefault("name") ?? "")
        {
            Rgb = isOwn ? (int)(mode & Rgb) : -1,
            IsGrayscale = (Int("color_policy", 0) & GrayscalePolicy) != 0,
            Screening = Math.Clamp(Int("screen", PlotStyle.FullIntensity), 0, PlotStyle.FullIntensity),
            LineWeight = Weight(Int("lineweight", 0), weights),
            End = (PlotLineEnd)Int("end_style", (int)PlotLineEnd.OfObject),
            Join = (PlotLineJoin)Int("join_style", (int)PlotLineJoin.OfObject),
            LineType = Int("linetype", PlotStyle.LineTypeOfObject),
            Fill = (PlotFill)Int("fill_style", (int)PlotFill.OfObject),
        };
    }

    // A table states a scale, and whether it holds.
    private static double PatternScale(Dictionary<string, string>? values)
    {
        bool holds = bool.TryParse(values?.GetValueOrDefault("apply_factor"), out bool applies) && applies;
        return holds
            && double.TryParse(
                values!.GetValueOrDefault("scale_factor"), CultureInfo.InvariantCulture, out double scale)
            && scale is > 1e-3 and < 1e3 ? scale : 1;
    }

    // Zero is the weight of the object; others are rows of the table, from one.
    private static float? Weight(int number, Dictionary<string, string>? weights)
    {
        string? row = number > 0
            ? weights?.GetValueOrDefault((number - 1).ToString(CultureInfo.InvariantCulture)) : null;
        return float.TryParse(row, NumberStyles.Float, CultureInfo.InvariantCulture, out float millimetres)
            && millimetres is >= 0 and <= 100 ? millimetres : null;
    }
}
