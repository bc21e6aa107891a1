using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Shx;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Text.Strokes;

/// <summary>Finds the faces of the stroke fonts that drawings name: compiled fonts that the caller has, and the face of
/// the library with the widths of common ones.</summary>
internal sealed class StrokeFaces
{
    private const string Extension = ".shx";
    private const string OwnFace = "the stroke face of the library";
    private const double Condensed = 0.76;
    private const double FullPitch = 1;

    // Factors on the widths of the face, which are those of simplex; the others have no face of strokes.
    private static readonly Dictionary<string, DrawnFace> Drawn = new(StringComparer.OrdinalIgnoreCase)
    {
        ["simplex"] = new(1),
        ["romans"] = new(1),
        ["romand"] = new(1),
        ["greeks"] = new(1),
        ["ltypeshp"] = new(1),
        ["gdt"] = new(1),
        ["txt"] = new(0.95),
        ["monotxt"] = new(1, FullPitch),
        ["isocp"] = new(Condensed),
        ["isocp2"] = new(Condensed),
        ["isocp3"] = new(Condensed),
        ["isoct"] = new(Condensed),
        ["isoct2"] = new(Condensed),
        ["isoct3"] = new(Condensed),
    };

    private readonly Dictionary<string, (string Path, CodePages CodePage)> _files =
        new(StringComparer.OrdinalIgnoreCase);

    private readonly Dictionary<string, ShapeFile?> _read = new(StringComparer.OrdinalIgnoreCase);
    private readonly Dictionary<(string Name, string Big), StrokeFace?> _faces = [];

    /// <summary>Adds a compiled font; the first of a name stays.</summary>
    internal void AddFile(string path, CodePages codePage) =>
        _files.TryAdd(Path.GetFileNameWithoutExtension(path), (path, codePage));

    /// <summary>Adds compiled fonts by their paths or folders, each with a code page; the last one holds for the
    /// rest.</summary>
    internal void AddFiles(IReadOnlyList<string> paths, IReadOnlyList<CodePages> codePages)
    {
        for (int i = 0; i < paths.Count; i++)
        {
            CodePages codePage = codePages.Count == 0
                ? CodePages.Default
                : codePages[Math.Min(i, codePages.Count - 1)];
            if (Directory.Exists(paths[i]))
            {
                AddFolder(paths[i], new EnumerationOptions { IgnoreInaccessible = true }, codePage);
            }
            else if (File.Exists(paths[i]))
            {
                AddFile(paths[i], codePage);
            }
            else
            {
                throw new DisplayList.RenderException($"shx_fonts names '{paths[i]}', which does not exist.");
            }
        }
    }

    internal int AddFolder(string folder, EnumerationOptions search, CodePages codePage = CodePages.Default)
    {
        int count = 0;
        foreach (string file in Directory.EnumerateFiles(folder, "*", search))
        {
            if (Path.GetExtension(file).Equals(Extension, StringComparison.OrdinalIgnoreCase))
            {
                AddFile(file, codePage);
                count++;
            }
        }

        return count;
    }

    /// <summary>Returns the face of a font, and adds a note where it is not the one that the drawing names; null where
    /// it has no face of strokes.</summary>
    internal StrokeFace? Find(in FontSpec font, IDictionary<string, string> notes)
    {
        string name = font.Stroke ?? "";
        (string, string) key = (name, font.BigFont ?? "");
        if (!_faces.TryGetValue(key, out StrokeFace? face))
        {
            face = Make(name, font.BigFont ?? "", notes);
            _faces.Add(key, face);
        }

        return face;
    }

    /// <summary>Returns the strokes of a symbol, in units of its file; null where no file has it.</summary>
    internal List<Vec2[]>? FindSymbol(string name)
    {
        foreach (string file in _files.Keys)
        {
            if (ReadFile(file) is { } shapes && shapes.Find(name) is { } strokes)
            {
                return strokes;
            }
        }

        return null;
    }

    private StrokeFace? Make(string name, string bigName, IDictionary<string, string> notes)
    {
        StrokeFace? big = bigName.Length > 0 && Read(bigName, notes) is { } bigFile
            ? new ShapeFace(bigFile, PageOf(bigName), null)
            : null;
        if (bigName.Length > 0 && big is null)
        {
            notes.TryAdd(bigName + Extension, "installed fonts");
        }

        if (Read(name, notes) is { } file)
        {
            // What a font lacks, often the blank, is drawn by the face of the library: the rest stays as it is.
            return new JoinedFace(
                new ShapeFace(file, PageOf(name), big), Drawn.GetValueOrDefault(name) ?? Drawn["txt"]);
        }

        if (!Drawn.TryGetValue(name, out DrawnFace? own))
        {
            own = FontTable.IsStrokeFont(name) ? null : Drawn["txt"];
        }

        if (own is not null)
        {
            notes.TryAdd(name + Extension, OwnFace);
        }

        return own is null ? big : big is null ? own : new JoinedFace(own, big);
    }

    private CodePages PageOf(string name) => _files.TryGetValue(name, out (string Path, CodePages CodePage) file)
        ? file.CodePage : CodePages.Default;

    // A file of symbols alone is no font.
    private ShapeFile? Read(string name, IDictionary<string, string> notes)
    {
        if (!_files.TryGetValue(name, out (string Path, CodePages CodePage) known))
        {
            return null;
        }

        if (ReadFile(name) is { Above: > 0 } font)
        {
            return font;
        }

        notes.TryAdd(name + Extension, $"{OwnFace}: the file '{known.Path}' is damaged or no font");
        return null;
    }

    private ShapeFile? ReadFile(string name)
    {
        if (_read.TryGetValue(name, out ShapeFile? file))
        {
            return file;
        }

        try
        {
            file = ShapeFile.TryRead(File.ReadAllBytes(_files[name].Path));
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            // The result of the export lists it as one that was replaced.
        }

        _read.Add(name, file);
        return file;
    }

    /// <summary>A face, and another one for characters that it lacks.</summary>
    private sealed class JoinedFace(StrokeFace first, StrokeFace second) : StrokeFace
    {
        private protected override StrokeGlyph? Make(int character) => first.Find(character) ?? second.Find(character);
    }
}
