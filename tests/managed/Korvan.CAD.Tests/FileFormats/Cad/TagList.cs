using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>The tags of text files, read without the library.</summary>
internal static class TagList
{
    private const int Release = 2018;

    /// <summary>Gives the tags of all objects of some types by their handles; numbers are spelled alike.</summary>
    internal static Dictionary<string, string[]> Objects(byte[] file, params string[] types)
    {
        List<(int Code, string Value)> tags = Parse(Encoding.Latin1.GetString(file));
        Dictionary<string, string[]> found = [];
        for (int i = 0; i < tags.Count; i++)
        {
            if (tags[i].Code == 0 && types.Contains(tags[i].Value))
            {
                List<(int Code, string Value)> own = [tags[i], .. tags.Skip(i + 1).TakeWhile(tag => tag.Code != 0)];
                found[own.First(tag => tag.Code == 5).Value] = [.. own.Select(Text)];
            }
        }

        return found;
    }

    /// <summary>Gives the tags that an entity is written with, without what ties it to its drawing.</summary>
    internal static string[] Of(CadEntityBase entity)
    {
        using MemoryStream stream = new();
        DxfTagWriter writer = new(stream, new UTF8Encoding(false), Release);
        new DxfObjectWriter(writer).WriteEntity(entity);
        writer.Flush();
        return [.. Untied(Parse(Encoding.UTF8.GetString(stream.ToArray()))).Select(Text)];
    }

    private static IEnumerable<(int Code, string Value)> Untied(List<(int Code, string Value)> tags)
    {
        bool inGroup = false;
        foreach ((int Code, string Value) tag in tags)
        {
            inGroup = inGroup ? tag.Value != "}" : tag.Code == 102 && tag.Value.StartsWith("{ACAD_", StringComparison.Ordinal);
            if (!inGroup && tag is not ((5 or 330, _) or (102, "}")))
            {
                yield return tag;
            }
        }
    }

    private static string Text((int Code, string Value) tag) => $"{tag.Code}: {tag.Value}";

    private static List<(int Code, string Value)> Parse(string text)
    {
        string[] lines = text.Split('\n');
        List<(int Code, string Value)> tags = [];
        for (int i = 0; i + 1 < lines.Length; i += 2)
        {
            int code = int.Parse(lines[i], NumberStyles.Integer, CultureInfo.InvariantCulture);
            string value = lines[i + 1].TrimEnd('\r');
            bool isNumber = code is not (< 10 or 102 or 100 or (>= 300 and < 370) or 1000 or 1001)
                && double.TryParse(value, NumberStyles.Float, CultureInfo.InvariantCulture, out _);
            tags.Add((code, isNumber
                ? double.Parse(value, NumberStyles.Float, CultureInfo.InvariantCulture).ToString("R", CultureInfo.InvariantCulture)
                : value.Trim()));
        }

        return tags;
    }
}
