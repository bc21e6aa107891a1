using System;
using System.Collections.Generic;
using System.IO;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg;
using Korvan.CAD.FileFormats.Cad.Dwg.Early;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// The drawings that a drawing refers to as blocks. Only files in the drawing's own folder, or below it, are opened;
/// each is read once, when it is drawn first.
/// </summary>
internal sealed class ExternalDrawings
{
    internal static readonly ExternalDrawings None = new(null, isNested: false);

    private const int VersionLength = 6;
    private const string LayerMark = "|";

    private readonly string? _folder;
    private readonly Dictionary<string, string?> _paths = new(StringComparer.OrdinalIgnoreCase);

    // By path, for all drawings of the host, so that none is read twice. Its layers have the name of the first block.
    private readonly Dictionary<string, DrawingScene?> _scenes;

    /// <summary>Creates the drawings of a folder.</summary>
    /// <param name="folder">The folder of the drawing; null for a drawing without one.</param>
    /// <param name="isNested">Whether the drawing is itself one that another refers to.</param>
    internal ExternalDrawings(string? folder, bool isNested)
        : this(folder, isNested, new Dictionary<string, DrawingScene?>(StringComparer.Ordinal))
    {
    }

    private ExternalDrawings(string? folder, bool isNested, Dictionary<string, DrawingScene?> scenes) =>
        (_folder, IsNested, _scenes) = (folder, isNested, scenes);

    /// <summary>Gets whether the drawing is itself one that another refers to, which hides its overlays.</summary>
    internal bool IsNested { get; }

    /// <summary>Returns the drawing that a block stands for; null where there is no file that can be read.</summary>
    internal DrawingScene? Find(BlockInfo block, SceneTables host)
    {
        if (_folder is null)
        {
            return null;
        }

        if (!_paths.TryGetValue(block.Name, out string? path))
        {
            path = FolderFiles.Find(_folder, block.ExternalPath);
            _paths.Add(block.Name, path);
        }

        if (path is null)
        {
            return null;
        }

        string key = Path.GetFullPath(path);
        if (!_scenes.TryGetValue(key, out DrawingScene? scene))
        {
            scene = Load(path, block.Name, host);
            _scenes.Add(key, scene);
        }

        return scene;
    }

    private DrawingScene? Load(string path, string block, SceneTables host)
    {
        try
        {
            if (FolderFiles.Read(_folder!, path) is not { Length: > VersionLength } data)
            {
                return null;
            }

            CadDrawing drawing = Read(data, path);
            drawing.Folder = Path.GetDirectoryName(path);
            DrawingScene scene = SceneReader.Read(drawing);
            Adopt(scene.Tables, block, host);
            return scene;
        }
        catch (FrameworkException e) when (e is not OperationInterruptedException)
        {
            return null; // a drawing is drawn without damaged ones, and reports them
        }
    }

    private static CadDrawing Read(byte[] data, string path)
    {
        var options = new LoadOptions { IgnoreErrors = true };
        if (!data.AsSpan().StartsWith("AC"u8))
        {
            using var stream = new MemoryStream(data);
            return new DxfReader(SourceFile.Open(stream, path), options).Read();
        }

        CadAcadVersion version = DrawingRelease.Parse(Encoding.ASCII.GetString(data, 0, VersionLength));
        return version >= CadAcadVersion.AC1012
            ? DwgLoader.Load(data, path, version, options) : EarlyDwgReader.Read(data, path, options);
    }

    /// <summary>Makes the layers those of the host, whose names begin with that of the block: their state in the host
    /// decides. The scale of line types and what is shown is that of the host, too.</summary>
    private void Adopt(SceneTables tables, string block, SceneTables host)
    {
        foreach ((string name, LayerInfo layer) in new Dictionary<string, LayerInfo>(tables.Layers))
        {
            if (name != "0" && !layer.IsReserved)
            {
                string own = block + LayerMark + name;
                tables.Layers[name] = host.Layers.TryGetValue(own, out LayerInfo? known)
                    ? known : layer with { Name = own };
            }
        }

        tables.Settings = host.Settings;
        tables.External = new ExternalDrawings(tables.External._folder, isNested: true, _scenes);
    }
}
