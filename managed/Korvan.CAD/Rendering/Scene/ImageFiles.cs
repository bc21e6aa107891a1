using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;

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
        if (_folder == null || !_names.TryGetValue(definition, out string? name) || Locate(name) is not string file)
        {
            return null;
        }

        if (!_loaded.TryGetValue(file, out ImagePixels? image))
        {
            image = Load(file);
            _loaded.Add(file, image);
        }

        return image;
    }

    private string? Locate(string name)
    {
        string relative = name.Replace('\\', '/');
        bool elsewhere = relative.StartsWith('/') || relative.Contains(':') || relative.Split('/').Contains("..");
        string bare = relative[(relative.LastIndexOf('/') + 1)..];
        foreach (string candidate in elsewhere ? [bare] : new[] { relative, bare })
        {
            string full = Path.GetFullPath(Path.Combine(_folder!, candidate));
            bool isBelow = full.StartsWith(_folder + Path.DirectorySeparatorChar, StringComparison.Ordinal);
            if (candidate.Length > 0 && isBelow && File.Exists(full))
            {
                return full;
            }
        }

        return null;
    }

    private static ImagePixels? Load(string file)
    {
        try
        {
            byte[] data = File.ReadAllBytes(file);
            return ImagePixels.Decode(data, file);
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException or FrameworkException)
        {
            return null; // a drawing is drawn without damaged images
        }
    }
}
