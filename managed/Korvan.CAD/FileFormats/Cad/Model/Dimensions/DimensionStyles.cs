using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <summary>The dimension styles of a drawing, with what they refer to by handle.</summary>
internal sealed class DimensionStyles
{
    private const string OverallScale = "$DIMSCALE";

    private readonly Dictionary<string, CadDimensionStyleTable> _styles = new(StringComparer.OrdinalIgnoreCase);
    private readonly Dictionary<CadDimensionStyleTable, DimensionStyle> _resolved = [];
    private readonly Dictionary<string, CadStyleTableObject> _textStyles = new(StringComparer.OrdinalIgnoreCase);
    private readonly Dictionary<string, string> _lineTypes = new(StringComparer.OrdinalIgnoreCase);
    private readonly Dictionary<string, string> _blocks = new(StringComparer.OrdinalIgnoreCase);
    private readonly HashSet<string> _blockNames = new(StringComparer.OrdinalIgnoreCase);
    private readonly double _scale;
    private readonly string _currentTextStyle;

    internal DimensionStyles(CadDrawing drawing)
    {
        foreach (CadDimensionStyleTable style in drawing.DimensionStyles)
        {
            _styles.TryAdd(style.Name, style);
        }

        foreach (CadStyleTableObject style in drawing.Styles)
        {
            _textStyles.TryAdd(style.ObjectHandle, style);
        }

        foreach (CadLineTypeTableObject type in drawing.LineTypes)
        {
            _lineTypes.TryAdd(type.ObjectHandle, type.Name);
        }

        foreach (CadBlockTableObject record in drawing.BlockRecords)
        {
            _blocks.TryAdd(record.ObjectHandle, record.Name);
        }

        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            _blockNames.Add(block.Name);
        }

        double scale = drawing.Header.Contains(OverallScale) && drawing.Header.Unreadable(OverallScale).Length == 0
            ? drawing.Header.GetDouble(OverallScale)
            : 1;
        _scale = scale > 0 ? scale : 1;
        _currentTextStyle = drawing.Header.CurrentTextStyle;
    }

    /// <summary>Gets the style of a dimension; one that its drawing lacks has the defaults of the format.</summary>
    internal DimensionStyle Of(CadDimensionBase dimension) => Of(dimension.StyleName, dimension);

    /// <summary>Gets the style of a leader.</summary>
    internal DimensionStyle Of(CadLeader leader) => Of(leader.DimensionStyleName, leader);

    /// <summary>Gets the arrowhead of a block by the handle of its record; closed and filled where there is
    /// none.</summary>
    internal DimensionArrow ArrowOf(string handle) => ArrowOf(handle, "");

    private DimensionStyle Of(string name, CadEntityBase entity)
    {
        if (!_styles.TryGetValue(name, out CadDimensionStyleTable? named))
        {
            _styles.Add(name, named = new CadDimensionStyleTable());
        }

        CadDimensionStyleTable own = StyleOverrides.Apply(named, entity);
        if (!ReferenceEquals(own, named))
        {
            return Resolve(own);
        }

        if (!_resolved.TryGetValue(named, out DimensionStyle? style))
        {
            _resolved.Add(named, style = Resolve(named));
        }

        return style;
    }

    private DimensionStyle Resolve(CadDimensionStyleTable values)
    {
        double scale = values.Dimscale > 0 ? values.Dimscale : _scale;
        CadStyleTableObject? text = _textStyles.GetValueOrDefault(values.Dimtxsty.TrimStart('0'));
        DimensionArrow both = ArrowOf(values.Dimblk, values.DimblkName);
        bool hasTwo = values.Dimsah != 0;
        return new DimensionStyle(values, scale)
        {
            TextStyle = text?.Name ?? _currentTextStyle,
            TextHeight = text?.TextHeight > 0 ? text.TextHeight : Math.Max(0, values.Dimtxt) * scale,
            FirstArrow = hasTwo ? ArrowOf(values.Dimblk1, values.Dimblk1Name) : both,
            SecondArrow = hasTwo ? ArrowOf(values.Dimblk2, values.Dimblk2Name) : both,
            LeaderArrow = ArrowOf(values.Dimldrblk),
            LineType = LineTypeOf(values.Dimltype),
            FirstExtensionType = LineTypeOf(values.Dimltex1),
            SecondExtensionType = LineTypeOf(values.Dimltex2),
        };
    }

    private DimensionArrow ArrowOf(string handle, string name)
    {
        string block = _blocks.TryGetValue(handle.TrimStart('0'), out string? found) ? found : name;
        return DimensionArrow.Of(block, _blockNames.Contains(block));
    }

    private string LineTypeOf(string handle) =>
        _lineTypes.TryGetValue(handle.TrimStart('0'), out string? name) ? name : DimensionStyle.ByBlock;
}
