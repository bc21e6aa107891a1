using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Shx;
using Korvan.CAD.Geometry;
using Korvan.CAD.Input;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The compiled shape files that a drawing's styles name. Only files in the drawing's own folder are opened.
/// </summary>
internal sealed class ShapeFiles
{
    internal static readonly ShapeFiles None = new([]);

    private const string Extension = ".shx";

    private readonly List<(string Folder, string Path)> _paths;
    private readonly Dictionary<string, List<Vec2[]>?> _found = new(StringComparer.OrdinalIgnoreCase);
    private List<ShapeFile>? _files;

    private ShapeFiles(List<(string Folder, string Path)> paths)
    {
        _paths = paths;
    }

    internal static ShapeFiles Of(CadDrawing drawing)
    {
        List<(string Folder, string Path)> paths = [];
        foreach (CadStyleTableObject style in drawing.Styles)
        {
            if ((style.StyleFlags & CadFontStyleTableFlag.Shape) != 0 && drawing.Folder is { } folder)
            {
                string name = style.PrimaryFontName;
                string file = Path.HasExtension(name) ? name : name + Extension;
                if (FolderFiles.Find(folder, file) is { } path)
                {
                    paths.Add((folder, path));
                }
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
        foreach ((string folder, string path) in _paths)
        {
            // A drawing is rendered without files that cannot be read; its symbols are reported.
            if (FolderFiles.Read(folder, path) is { } data && ShapeFile.TryRead(data) is { } file)
            {
                files.Add(file);
            }
        }

        return files;
    }
}
