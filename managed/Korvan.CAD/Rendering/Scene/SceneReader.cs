using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;
using Korvan.CAD.FileFormats.Cad.Model.Tables;
using Korvan.CAD.FileFormats.Shx;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Makes a scene of a drawing: its tables by name, its blocks, and its layouts with their sheets.</summary>
internal static class SceneReader
{
    // Group code 70 of a block.
    private const int OverlayFlag = 8;

    internal static DrawingScene Read(CadDrawing drawing)
    {
        SceneTables tables = ReadTables(drawing);
        Dictionary<ulong, Dictionary<ulong, ulong>> orders = SortTables.Read(drawing.Objects);
        var recordHandles = new Dictionary<string, ulong>(StringComparer.OrdinalIgnoreCase);
        foreach (CadBlockTableObject record in drawing.BlockRecords)
        {
            recordHandles.TryAdd(record.Name, record.Handle);
        }

        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            BlockInfo info = Block(block, recordHandles, orders);
            tables.Blocks.TryAdd(block.Name, info);
            if (recordHandles.TryGetValue(block.Name, out ulong record))
            {
                tables.BlocksByRecord.TryAdd(record, info);
            }
        }

        BlockInfo model = Block(drawing.ModelSpace, recordHandles, orders);
        return new DrawingScene(
            tables, model, Layouts(drawing, tables, model, Block(drawing.PaperSpace, recordHandles, orders)));
    }

    /// <summary>The tables of a drawing, without its blocks.</summary>
    internal static SceneTables ReadTables(CadDrawing drawing)
    {
        TextEngine.ProvideFontList();
        var tables = new SceneTables
        {
            Settings = Settings(drawing),
            Images = ImageFiles.Of(drawing),
            Shapes = ShapeFiles.Of(drawing),
            Clips = ClipBoundaries.Of(drawing),
            ViewportLayers = ViewportLayers.Of(drawing),
            PlotStyles = PlotStyleFiles.Of(drawing),
            External = new ExternalDrawings(drawing.Folder, isNested: false),
            Dimensions = new DimensionStyles(drawing),
            CellSources = new TableSources(drawing),
        };
        var styleNames = new Dictionary<string, string>(StringComparer.OrdinalIgnoreCase);
        foreach (CadStyleTableObject text in drawing.Styles)
        {
            StyleInfo style = TableReader.Style(text);
            tables.Styles.TryAdd(text.Name, style);
            tables.StylesByHandle.TryAdd(text.Handle, style);
            styleNames.TryAdd(text.ObjectHandle, text.Name);
        }

        foreach (CadLayerTable layer in drawing.Layers)
        {
            tables.Layers.TryAdd(layer.Name, TableReader.Layer(layer));
            tables.LayerNames.Add(layer.Name);
        }

        foreach (CadLineTypeTableObject type in drawing.LineTypes)
        {
            tables.LineTypes.TryAdd(type.Name, TableReader.LineType(type, styleNames));
            tables.LineTypeNames.Add(type.Name);
        }

        double overall = drawing.Header.Contains("$DIMSCALE") && drawing.Header.Unreadable("$DIMSCALE").Length == 0
            ? drawing.Header.GetDouble("$DIMSCALE")
            : 1;
        foreach (CadDimensionStyleTable dim in drawing.DimensionStyles)
        {
            string text = styleNames.TryGetValue(dim.Dimtxsty, out string? name)
                ? name
                : drawing.Header.CurrentTextStyle;
            tables.DimStyles.TryAdd(dim.Name, TableReader.DimStyle(dim, overall > 0 ? overall : 1, text));
        }

        foreach (CadMLineStyleObject multi in drawing.Objects.OfType<CadMLineStyleObject>())
        {
            List<MlineElement> elements = multi.Elements.ConvertAll(
                e => new MlineElement(e.Offset, new DrawingColor(e.ColorId, e.ColorValue), e.LineTypeName));
            var fill = new DrawingColor(multi.FillColorId);
            tables.MlineStyles.TryAdd(multi.StyleName, new MlineStyle(elements, multi.Flags, fill));
        }

        return tables;
    }

    private static readonly string[] Variables =
    [
        "$LTSCALE", "$PSLTSCALE", "$PDMODE", "$PDSIZE", "$FILLMODE", "$ATTMODE", "$LWDISPLAY", "$TEXTSIZE",
        "$TDUCREATE", "$TDCREATE", "$TDUUPDATE", "$TDUPDATE",
    ];

    private static SceneSettings Settings(CadDrawing drawing)
    {
        string[] unreadable = drawing.Header.Unreadable(Variables);
        CadHeader header = unreadable.Length == 0 ? drawing.Header : Readable(drawing.Header, unreadable);
        CadWipeoutVariables? wipeout = drawing.Objects.OfType<CadWipeoutVariables>().FirstOrDefault();
        return new SceneSettings
        {
            Unreadable = unreadable,
            LinetypeScale = header.LtScale > 0 ? header.LtScale : 1,
            PaperLinetypeScale = header.PsLtScale != 0,
            PointMode = header.PdMode,
            PointSize = header.PdSize,
            FillMode = header.FillMode != 0 || !header.Contains("$FILLMODE"),
            AttributeMode = header.Contains("$ATTMODE") ? header.AttMode : 1,
            ShowLineWeights = header.LwDisplay != 0 || !header.Contains("$LWDISPLAY"),
            TextSize = header.TextSize > 0 ? header.TextSize : 2.5,
            WipeoutFrames = wipeout != null && wipeout.DisplayFrame != 0,
            ClipFrames = (int)header.GetDouble("$XCLIPFRAME"),
            Created = Date(header, "$TDUCREATE") ?? Date(header, "$TDCREATE"),
            Modified = Date(header, "$TDUUPDATE") ?? Date(header, "$TDUPDATE"),
        };
    }

    private static CadHeader Readable(CadHeader header, string[] unreadable)
    {
        var copy = new CadHeader();
        foreach (string name in header.VariableNames)
        {
            if (Array.IndexOf(unreadable, name) < 0)
            {
                copy.TagsOf(name).AddRange(header.TagsOf(name));
            }
        }

        return copy;
    }

    /// <summary>A date that is stated in Julian days; null where there is none of these centuries.</summary>
    private static DateTime? Date(CadHeader header, string variable)
    {
        const double yearOne = 1_721_425.5, daysKnown = 3_652_059;
        double days = header.GetDouble(variable) - yearOne;
        return days is > 0 and < daysKnown
            ? new DateTime(1, 1, 1, 0, 0, 0, DateTimeKind.Utc).AddSeconds(Math.Round(days * 86_400))
            : null;
    }

    private static BlockInfo Block(
        CadBlockEntity block, Dictionary<string, ulong> recordHandles,
        Dictionary<ulong, Dictionary<ulong, ulong>> orders)
    {
        Dictionary<ulong, ulong>? order = null;
        if (recordHandles.TryGetValue(block.Name, out ulong handle))
        {
            orders.TryGetValue(handle, out order);
        }

        var origin = new Vec3(block.BasePoint.X, block.BasePoint.Y, block.BasePoint.Z);
        return new BlockInfo(block.Name, origin, block.Entities.ItemsOf())
        {
            IsExternal = block.IsExternalReference,
            IsOverlay = (block.Flags & OverlayFlag) != 0,
            ExternalPath = block.XRefPathName,
            DrawOrder = order,
        };
    }

    private static List<LayoutInfo> Layouts(CadDrawing drawing, SceneTables tables, BlockInfo model, BlockInfo paper)
    {
        // Old drawings have no handles, and their layouts lead nowhere.
        var names = drawing.BlockRecords.Items.Where(static r => r.Handle != 0)
            .ToLookup(static r => r.Handle, static r => r.Name);
        var layouts = new List<LayoutInfo>();
        foreach (CadLayout layout in drawing.Layouts)
        {
            string? block = HandleText.TryParse(layout.BlockTableRecordHandle, out ulong handle)
                ? names[handle].FirstOrDefault() : null;
            bool isModel = string.Equals(layout.LayoutName, DrawingScene.ModelName, StringComparison.OrdinalIgnoreCase)
                || string.Equals(block, model.Name, StringComparison.OrdinalIgnoreCase);
            BlockInfo content = isModel ? model : block != null
                && tables.Blocks.TryGetValue(block, out BlockInfo? own) ? own : paper;
            PlotArea? plot = isModel ? null : PlotArea.Of(drawing, layout, content);
            layouts.Add(new LayoutInfo(layout.LayoutName, content, isModel, plot)
            {
                Styles = tables.PlotStyles.SetupOf(layout),
            });
        }

        if (!layouts.Exists(l => l.IsModel))
        {
            layouts.Insert(0, new LayoutInfo(DrawingScene.ModelName, model, true, null));
        }

        return layouts;
    }
}
