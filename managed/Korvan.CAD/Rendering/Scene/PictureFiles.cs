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
internal sealed class PictureFiles
{
    internal static readonly PictureFiles None = new(null, []);

    private readonly string? folder;
    private readonly Dictionary<string, string> names;
    private readonly Dictionary<string, Picture?> loaded = new(StringComparer.Ordinal);

    private PictureFiles(string? folder, Dictionary<string, string> names)
    {
        this.folder = folder;
        this.names = names;
    }

    internal static PictureFiles Of(CadDrawing drawing)
    {
        string? folder = drawing.Folder;
        var names = new Dictionary<string, string>(StringComparer.OrdinalIgnoreCase);
        foreach (CadRasterImageDef definition in drawing.Objects.OfType<CadRasterImageDef>())
        {
            names.TryAdd(definition.ObjectHandle, definition.FileName);
        }

        return new PictureFiles(folder, names);
    }

    /// <summary>The picture of a definition, or null when its file is absent, elsewhere, or of no kind that is read.</summary>
    internal Picture? Find(string definition)
    {
        if (folder == null || !names.TryGetValue(definition, out string? name) || Locate(name) is not string file)
        {
            return null;
        }

        if (!loaded.TryGetValue(file, out Picture? picture))
        {
            picture = Load(file);
            loaded.Add(file, picture);
        }

        return picture;
    }

    private string? Locate(string name)
    {
        string relative = name.Replace('\\', '/');
        bool elsewhere = relative.StartsWith('/') || relative.Contains(':') || relative.Split('/').Contains("..");
        string bare = relative[(relative.LastIndexOf('/') + 1)..];
        foreach (string candidate in elsewhere ? [bare] : new[] { relative, bare })
        {
            string full = Path.GetFullPath(Path.Combine(folder!, candidate));
            if (candidate.Length > 0 && full.StartsWith(folder + Path.DirectorySeparatorChar, StringComparison.Ordinal) && File.Exists(full))
            {
                return full;
            }
        }

        return null;
    }

    private static Picture? Load(string file)
    {
        try
        {
            byte[] data = File.ReadAllBytes(file);
            return Picture.Decode(data, file);
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException or FrameworkException)
        {
            return null; // a drawing is drawn without the pictures that are damaged
        }
    }
}
