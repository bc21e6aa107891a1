using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Shx;

/// <summary>The compiled shape files that a drawing's styles name. Only files in the drawing's own folder are opened.
/// </summary>
internal sealed class ShapeFiles
{
    internal static readonly ShapeFiles None = new([]);

    private const string Extension = ".shx";

    private readonly List<(CadStyleTableObject Style, string Folder, string Path)> _paths;
    private readonly Dictionary<string, List<Vec2[]>?> _found = new(StringComparer.OrdinalIgnoreCase);
    private List<(CadStyleTableObject Style, ShapeFile File)>? _files;

    private ShapeFiles(List<(CadStyleTableObject Style, string Folder, string Path)> paths)
    {
        _paths = paths;
    }

    private List<(CadStyleTableObject Style, ShapeFile File)> Files => _files ??= Load();

    internal static ShapeFiles Of(CadDrawing drawing)
    {
        List<(CadStyleTableObject Style, string Folder, string Path)> paths = [];
        foreach (CadStyleTableObject style in drawing.Styles)
        {
            if ((style.StyleFlags & CadFontStyleTableFlag.Shape) != 0 && drawing.Folder is { } folder)
            {
                string name = style.PrimaryFontName;
                string file = Path.HasExtension(name) ? name : name + Extension;
                if (FolderFiles.Find(folder, file) is { } path)
                {
                    paths.Add((style, folder, path));
                }
            }
        }

        return new ShapeFiles(paths);
    }

    /// <summary>Names the symbols that drawing databases know by their numbers only.</summary>
    internal static void AddNames(CadDrawing drawing)
    {
        List<CadShape> shapes = Unnamed(drawing);
        if (shapes.Count > 0)
        {
            ShapeFiles files = Of(drawing);
            shapes.ForEach(shape => shape.ShapeName = files.NameOf(shape));
        }
    }

    // The folder is looked through only for drawings that have such symbols.
    private static List<CadShape> Unnamed(CadDrawing drawing)
    {
        List<CadShape> shapes = [];
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            foreach (CadEntityBase entity in block.Entities)
            {
                if (entity is CadShape { ShapeName.Length: 0, ShapeNumber: not 0 } shape)
                {
                    shapes.Add(shape);
                }
            }
        }

        return shapes;
    }

    /// <summary>Numbers the symbols of a drawing whose handles are complete, for drawing databases.</summary>
    internal static void AddNumbers(CadDrawing drawing)
    {
        ShapeFiles? files = null;
        foreach (CadShape shape in DrawingWalk.Entities(drawing).OfType<CadShape>())
        {
            files ??= Of(drawing);
            shape.StyleHandle = StyleOf(drawing, shape)?.ObjectHandle ?? "0";
            foreach ((CadStyleTableObject style, ShapeFile file) in shape.ShapeName.Length > 0 ? files.Files : [])
            {
                if (file.NumberOf(shape.ShapeName) is { } number)
                {
                    (shape.ShapeNumber, shape.StyleHandle) = (number, style.ObjectHandle);
                    break;
                }
            }
        }
    }

    // The one that it refers to, which copies in other drawings do not have, or the only one of a file.
    private static CadStyleTableObject? StyleOf(CadDrawing drawing, CadShape shape)
    {
        List<CadStyleTableObject> styles = drawing.Styles.Items.FindAll(
            static one => (one.StyleFlags & CadFontStyleTableFlag.Shape) != 0);
        return styles.Find(one => one.ObjectHandle == shape.StyleHandle)
            ?? styles.Find(one => shape.StyleName.Length > 0 && one.Name == shape.StyleName)
            ?? (styles.Count == 1 ? styles[0] : null);
    }

    /// <summary>Returns the strokes of a symbol; null where no file has it.</summary>
    internal List<Vec2[]>? Find(string name)
    {
        if (_found.TryGetValue(name, out List<Vec2[]>? strokes))
        {
            return strokes;
        }

        foreach ((_, ShapeFile file) in Files)
        {
            strokes ??= file.Find(name);
        }

        _found.Add(name, strokes);
        return strokes;
    }

    // Styles of files have no names; those of the oldest releases are told from each other by nothing else.
    private string NameOf(CadShape shape)
    {
        string name = "";
        foreach ((CadStyleTableObject style, ShapeFile file) in Files)
        {
            if (style.ObjectHandle == shape.StyleHandle)
            {
                return file.NameOf(shape.ShapeNumber);
            }

            name = name.Length > 0 ? name : file.NameOf(shape.ShapeNumber);
        }

        return shape.StyleHandle == "0" ? name : "";
    }

    private List<(CadStyleTableObject Style, ShapeFile File)> Load()
    {
        List<(CadStyleTableObject Style, ShapeFile File)> files = [];
        foreach ((CadStyleTableObject style, string folder, string path) in _paths)
        {
            // A drawing is rendered without files that cannot be read; its symbols are reported.
            if (FolderFiles.Read(folder, path) is { } data && ShapeFile.TryRead(data) is { } file)
            {
                files.Add((style, file));
            }
        }

        return files;
    }
}
