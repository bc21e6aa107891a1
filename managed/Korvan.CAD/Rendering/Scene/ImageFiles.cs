using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Input;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// The files that a drawing's images name. Only files in the drawing's own folder, or below it, are opened: a path
/// that leads elsewhere is tried by its file name alone.
/// </summary>
internal sealed class ImageFiles
{
    internal static readonly ImageFiles None = new(null, []);

    private readonly string? _folder;
    private readonly Dictionary<string, string> _names;
    private readonly Dictionary<string, ImagePixels?> _loaded = new(StringComparer.Ordinal);

    private ImageFiles(string? folder, Dictionary<string, string> names)
    {
        _folder = folder;
        _names = names;
    }

    internal static ImageFiles Of(CadDrawing drawing)
    {
        string? folder = drawing.Folder;
        var names = new Dictionary<string, string>(StringComparer.OrdinalIgnoreCase);
        foreach (CadRasterImageDef definition in drawing.Objects.OfType<CadRasterImageDef>())
        {
            names.TryAdd(definition.ObjectHandle, definition.FileName);
        }

        return new ImageFiles(folder, names);
    }

    /// <summary>The image of a definition, or null when its file is absent, elsewhere, or of no kind that is
    /// read.</summary>
    internal ImagePixels? Find(string definition)
    {
        if (_folder == null || !_names.TryGetValue(definition, out string? name)
            || FolderFiles.Find(_folder, name) is not string file)
        {
            return null;
        }

        if (!_loaded.TryGetValue(file, out ImagePixels? image))
        {
            image = Load(_folder, file);
            _loaded.Add(file, image);
        }

        return image;
    }

    private static ImagePixels? Load(string folder, string file)
    {
        try
        {
            return FolderFiles.Read(folder, file) is { } data ? ImagePixels.Decode(data, file) : null;
        }
        catch (FrameworkException e) when (e is not OperationInterruptedException)
        {
            return null; // a drawing is drawn without damaged images
        }
    }
}
