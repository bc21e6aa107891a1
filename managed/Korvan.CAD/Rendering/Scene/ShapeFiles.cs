using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Shx;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The compiled shape files that a drawing's styles name. Only files in the drawing's own folder are opened.
/// </summary>
internal sealed class ShapeFiles
{
    internal static readonly ShapeFiles None = new([]);

    private const string Extension = ".shx";

    private readonly List<string> _paths;
    private readonly Dictionary<string, List<Vec2[]>?> _found = new(StringComparer.OrdinalIgnoreCase);
    private List<ShapeFile>? _files;

    private ShapeFiles(List<string> paths)
    {
        _paths = paths;
    }

    internal static ShapeFiles Of(CadDrawing drawing)
    {
        List<string> paths = [];
        foreach (CadStyleTableObject style in drawing.Styles)
        {
            if ((style.StyleFlags & CadFontStyleTableFlag.Shape) != 0 && drawing.Folder is { } folder)
            {
                string name = style.PrimaryFontName.Replace('\\', '/');
                string bare = name[(name.LastIndexOf('/') + 1)..];
                paths.Add(Path.Combine(folder, Path.HasExtension(bare) ? bare : bare + Extension));
            }
        }

        return new ShapeFiles(paths);
    }

    /// <summary>Returns the strokes of a symbol; null where no file has it.</summary>
    internal List<Vec2[]>? Find(string name)
    {
        if (_found.TryGetValue(name, out List<Vec2[]>? strokes))
        {
            return strokes;
        }

        _files ??= Load();
        foreach (ShapeFile file in _files)
        {
            strokes ??= file.Find(name);
        }

        _found.Add(name, strokes);
        return strokes;
    }

    private List<ShapeFile> Load()
    {
        List<ShapeFile> files = [];
        foreach (string path in _paths)
        {
            try
            {
                if (File.Exists(path) && ShapeFile.TryRead(File.ReadAllBytes(path)) is { } file)
                {
                    files.Add(file);
                }
            }
            catch (Exception e) when (e is IOException or UnauthorizedAccessException)
            {
                // A drawing is rendered without files that cannot be read; its symbols are reported.
            }
        }

        return files;
    }
}
