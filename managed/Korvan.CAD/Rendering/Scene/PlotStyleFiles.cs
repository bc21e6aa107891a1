using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.PlotStyles;
using Korvan.CAD.Input;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The plot styles of a layout: what the page setup names, and where it wants them.</summary>
/// <param name="Name">The name of the table.</param>
/// <param name="Table">The table; null where there is no file and the name is no standard one.</param>
/// <param name="OnScreen">Whether screens show the styles.</param>
/// <param name="OnPlot">Whether plots have the styles.</param>
internal sealed record PlotSetup(string Name, PlotStyleTable? Table, bool OnScreen, bool OnPlot)
{
    /// <summary>Gets the drawing units in a millimetre of paper; those of the paper for a plot that is fitted to
    /// it.</summary>
    internal double UnitsPerMillimetre { get; init; } = 1;
}

/// <summary>The tables of plot styles that page setups name, and the names of styles. Only files in the drawing's own
/// folder are opened; tables of CAD programs are known without a file.</summary>
internal sealed class PlotStyleFiles
{
    internal static readonly PlotStyleFiles None = new(null, []);

    private const string StyleNames = "ACAD_PLOTSTYLENAME";

    private readonly string? _folder;
    private readonly Dictionary<ulong, string> _names;
    private readonly Dictionary<string, PlotStyleTable?> _tables = new(StringComparer.OrdinalIgnoreCase);

    private PlotStyleFiles(string? folder, Dictionary<ulong, string> names)
    {
        (_folder, _names) = (folder, names);
    }

    internal static PlotStyleFiles Of(CadDrawing drawing)
    {
        var names = new Dictionary<ulong, string>();
        CadDictionaryBase[] dictionaries = [.. drawing.Objects.OfType<CadDictionaryBase>()];
        CadDictionaryBase? root = Array.Find(dictionaries, static one => one.GetHandle(StyleNames).Length > 0);
        ulong handle = 0;
        _ = root?.TryGet(StyleNames, out handle);
        CadDictionaryBase? styles = root is null ? null : Array.Find(dictionaries, one => one.Handle == handle);
        foreach (string name in styles?.Names ?? [])
        {
            _ = styles!.TryGet(name, out ulong placeholder) && names.TryAdd(placeholder, name);
        }

        return new PlotStyleFiles(drawing.Folder, names);
    }

    /// <summary>Returns the name of a style by the handle of its placeholder; null for none.</summary>
    internal string? NameOf(string handle) =>
        HandleText.TryParse(handle, out ulong number) ? _names.GetValueOrDefault(number) : null;

    /// <summary>Returns the plot styles of a layout; null where it has none or does not use them.</summary>
    internal PlotSetup? SetupOf(CadPlotSettings layout)
    {
        bool onScreen = (layout.PlotFlags & CadPlotLayoutFlag.ShowPlotStyles) != 0;
        bool onPlot = (layout.PlotFlags & CadPlotLayoutFlag.PlotPlotStyles) != 0;
        string name = layout.CurrentStyleSheet;
        return name.Length == 0 || !(onScreen || onPlot)
            ? null
            : new PlotSetup(name[(name.AsSpan().LastIndexOfAny('/', '\\') + 1)..], Find(name), onScreen, onPlot)
            {
                UnitsPerMillimetre = PlotArea.ScaleOf(layout) ?? PlotArea.UnitOf(layout),
            };
    }

    private PlotStyleTable? Find(string name)
    {
        if (!_tables.TryGetValue(name, out PlotStyleTable? table))
        {
            table = Load(name) ?? PlotStyleTable.Standard(name.Replace('\\', '/'));
            _tables.Add(name, table);
        }

        return table;
    }

    private PlotStyleTable? Load(string name) =>
        _folder is not null && FolderFiles.Find(_folder, name) is { } path
            && FolderFiles.Read(_folder, path) is { } data ? PlotStyleReader.Read(data) : null;
}
