using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Tables;

/// <summary>
/// Makes the entities of a table that its block would have: fills, then borders, then the content of the cells. They
/// are by block where the style states nothing, in a plane whose origin is the insertion point of the table.
/// </summary>
internal sealed class TableGraphics
{
    private const int MaxCells = 1 << 20;
    private const int RowsUp = 1;
    private const int TitleHidden = 0x1;
    private const int HeaderHidden = 0x2;
    private const int FlowStated = 0x4;
    private const int MarginXStated = 0x8;
    private const int MarginYStated = 0x10;
    private const string ByBlock = "BYBLOCK";
    private const short WeightByBlock = -2;

    private readonly CadTableEntity _table;
    private readonly TableSources _sources;
    private readonly CadTableStyle _style;
    private readonly TableProperties _stated;
    private readonly double[] _xs;
    private readonly double[] _ys;
    private readonly CellAppearance[] _appearances;
    private readonly Vec2 _margin;

    private TableGraphics(CadTableEntity table, TableSources sources)
    {
        (_table, _sources) = (table, sources);
        _style = sources.StyleOf(table.TableStyleHandle);
        _stated = table.StatedProperties();
        bool isUp = (Stated(FlowStated)?.Number ?? _style.FlowDirection) == RowsUp;
        _margin = new Vec2(
            Stated(MarginXStated)?.Number ?? _style.HorizontalMargin,
            Stated(MarginYStated)?.Number ?? _style.VerticalMargin);
        _xs = Positions(table.ColumnWidths, table.NumberOfColumns, 1);
        _ys = Positions(table.RowHeights, table.NumberOfRows, isUp ? 1 : -1);
        _appearances = [AppearanceOf(RowKind.Title), AppearanceOf(RowKind.Header), AppearanceOf(RowKind.Data)];
    }

    /// <summary>Returns the entities; none for a table without cells.</summary>
    internal static List<CadEntityBase> Create(CadTableEntity table, TableSources sources)
    {
        long cells = (long)table.NumberOfRows * table.NumberOfColumns;
        return table.NumberOfRows > 0 && table.NumberOfColumns > 0 && cells <= MaxCells && table.Cells.Count >= cells
            ? new TableGraphics(table, sources).Create() : [];
    }

    /// <summary>Sets colour and stroke style of an entity of the block.</summary>
    internal static T Colored<T>(T entity, CellColor color)
        where T : CadEntityBase
    {
        (entity.ColorId, entity.ColorValue) = (color.Index, color.Rgb);
        entity.LineTypeName = ByBlock;
        return entity;
    }

    private List<CadEntityBase> Create()
    {
        List<CadEntityBase> fills = [];
        List<CadEntityBase> content = [];
        var borders = new TableBorders(_xs, _ys);
        for (int row = 0; row < _table.NumberOfRows; row++)
        {
            for (int column = 0; column < _table.NumberOfColumns; column++)
            {
                CadTableCell cell = _table.Cells[(row * _table.NumberOfColumns) + column];
                if (cell.IsMerged == 0)
                {
                    AddCell(new CellArea(row, column, SpanOf(cell, row, column)), cell, fills, borders, content);
                }
            }
        }

        borders.AddTo(fills);
        fills.AddRange(content);
        return fills;
    }

    private void AddCell(
        CellArea area, CadTableCell cell, List<CadEntityBase> fills, TableBorders borders, List<CadEntityBase> content)
    {
        Dictionary<int, StatedValue> stated = cell.StatedProperties();
        CellAppearance appearance = _appearances[(int)KindOf(area.Row)].For(stated);
        Bounds2 box = Bounds2.Of(
            _xs[area.Column], Math.Min(_ys[area.Row], _ys[area.EndRow]),
            _xs[area.EndColumn], Math.Max(_ys[area.Row], _ys[area.EndRow]));
        if (appearance.HasFill)
        {
            fills.Add(FillOf(box, appearance.Fill));
        }

        AddBorders(area, appearance, stated, borders);
        if (cell.CellType == CadTableCell.BlockCell)
        {
            AddBlock(cell, appearance, box, content);
        }
        else if (TextOf(cell) is { Length: > 0 } text)
        {
            content.Add(TextIn(box, text, cell.Rotation, appearance));
        }
    }

    private void AddBorders(
        CellArea area, CellAppearance appearance, Dictionary<int, StatedValue> stated, TableBorders borders)
    {
        CellBorder Of(CellSide side, bool isOuter) => appearance.BorderOf(side, isOuter, stated);
        bool isUp = _ys[^1] > _ys[0];
        bool isFirst = area.Row == 0 || KindOf(area.Row - 1) != KindOf(area.Row);
        bool isLast = area.EndRow == _table.NumberOfRows || KindOf(area.EndRow) != KindOf(area.EndRow - 1);
        borders.SetRow(
            area.Row, area.Column, area.EndColumn, Of(isUp ? CellSide.Bottom : CellSide.Top, isFirst));
        borders.SetRow(
            area.EndRow, area.Column, area.EndColumn, Of(isUp ? CellSide.Top : CellSide.Bottom, isLast));
        borders.SetColumn(area.Column, area.Row, area.EndRow, Of(CellSide.Left, area.Column == 0));
        borders.SetColumn(
            area.EndColumn, area.Row, area.EndRow, Of(CellSide.Right, area.EndColumn == _table.NumberOfColumns));
    }

    private CadMText TextIn(in Bounds2 box, string text, double rotation, CellAppearance appearance)
    {
        (double sin, double cos) = Math.SinCos(rotation);
        bool isUpright = Math.Abs(cos) >= Math.Abs(sin);
        (Vec2 at, int x, int y) = PlaceIn(box, appearance.Alignment);

        // The side of the text that is at that side of the cell.
        (int left, int top) = ((int)Math.Round((cos * x) + (sin * y)), (int)Math.Round((cos * y) - (sin * x)));
        return Colored(
            new CadMText
            {
                Text = text,
                InsertionPoint = new Cad3DPoint(at.X, at.Y, 0),
                InitialTextHeight = appearance.TextHeight,
                TextStyleName = appearance.TextStyle,
                AttachmentPoint = (CadAttachmentPoint)(((1 - top) * 3) + left + 2),
                TextRotation = Angles.Degrees(rotation),
                ReferenceRectangleWidth = Math.Max(
                    0, isUpright ? box.Width - (2 * _margin.X) : box.Height - (2 * _margin.Y)),
            },
            appearance.TextColor);
    }

    private void AddBlock(CadTableCell cell, CellAppearance appearance, in Bounds2 box, List<CadEntityBase> content)
    {
        if (_sources.BlockOf(cell.BlockRecordHandle) is not { } block
            || _sources.ExtentsOf(block) is not { IsEmpty: false } extents)
        {
            return;
        }

        (Vec2 low, Vec2 high) = (extents.Min.ToVec3().Xy, extents.Max.ToVec3().Xy);
        List<CadCodeValue> tags = [.. cell.Content];
        string? stated = TableOverride.Take(tags, CadTableCell.BlockScale);
        double scale = stated is null ? 1 : TableOverride.Parse(stated);
        if (cell.AutoFit != 0)
        {
            Vec2 size = high - low;
            scale = Math.Min(
                (box.Width - (2 * _margin.X)) / Math.Max(size.X, 1e-9),
                (box.Height - (2 * _margin.Y)) / Math.Max(size.Y, 1e-9));
        }

        if (!(scale > 0) || !double.IsFinite(scale))
        {
            return;
        }

        (Vec2 at, int x, int y) = PlaceIn(box, appearance.Alignment);
        Vec2 anchor = ((low + high) * 0.5) + new Vec2(x * (high.X - low.X) / 2, y * (high.Y - low.Y) / 2);
        Affine3 turn = Affine3.RotationZ(cell.Rotation) * Affine3.Scaling(scale, scale, scale);
        Vec3 origin = new Vec3(at.X, at.Y, 0) - turn.Vector(new Vec3(anchor.X, anchor.Y, 0));
        Vec3 insertion = origin + turn.Vector(block.BasePoint.ToVec3());
        CadInsertObject insert = Colored(
            new CadInsertObject
            {
                Name = block.Name,
                InsertionPoint = new Cad3DPoint(insertion.X, insertion.Y, insertion.Z),
                ScaleX = scale,
                ScaleY = scale,
                ScaleZ = scale,
                RotationAngle = Angles.Degrees(cell.Rotation),
            },
            new CellColor(0));
        Affine3 map = Affine3.Translation(origin) * turn;
        while (TableOverride.Take(tags, CadTableCell.AttributeDefinition) is { } handle)
        {
            string value = TableOverride.Take(tags, CadTableCell.AttributeText) ?? "";
            if (DefinitionOf(block, handle) is { } definition)
            {
                insert.Attributes.Add(Attribute(definition, value, map, scale, cell.Rotation));
            }
        }

        content.Add(insert);
    }

    private static CadAttDef? DefinitionOf(CadBlockEntity block, string handle) =>
        block.Entities.OfType<CadAttDef>().FirstOrDefault(definition => string.Equals(
            definition.ObjectHandle, handle.TrimStart('0'), StringComparison.OrdinalIgnoreCase));

    private static CadAttrib Attribute(
        CadAttDef definition, string value, in Affine3 map, double scale, double rotation) => new()
        {
            DefaultValue = value,
            LayerName = definition.LayerName,
            ColorId = definition.ColorId,
            ColorValue = definition.ColorValue,
            FirstAlignment = Moved(definition.FirstAlignment, map),
            SecondAlignment = Moved(definition.SecondAlignment, map),
            HorizontalAlignment = definition.HorizontalAlignment,
            VerticalAlignment = definition.VerticalAlignment,
            TextHeight = definition.TextHeight * scale,
            TextRotation = definition.TextRotation + Angles.Degrees(rotation),
            ScaleX = definition.ScaleX,
            ObliqueAngle = definition.ObliqueAngle,
            StyleType = definition.StyleType,
            TextGenerationFlags = definition.TextGenerationFlags,
        };

    private static Cad3DPoint Moved(Cad3DPoint point, in Affine3 map)
    {
        Vec3 moved = map.Point(point.ToVec3());
        return new Cad3DPoint(moved.X, moved.Y, moved.Z);
    }

    /// <summary>Returns where content is aligned: a point of the cell within its margins, and its sides, -1 to
    /// 1.</summary>
    private (Vec2 At, int X, int Y) PlaceIn(in Bounds2 box, int alignment)
    {
        int index = Math.Clamp(alignment, 1, 9) - 1;
        (int x, int y) = ((index % 3) - 1, 1 - (index / 3));
        double halfWidth = Math.Max(0, (box.Width / 2) - _margin.X);
        double halfHeight = Math.Max(0, (box.Height / 2) - _margin.Y);
        return (
            new Vec2(((box.MinX + box.MaxX) / 2) + (x * halfWidth), ((box.MinY + box.MaxY) / 2) + (y * halfHeight)),
            x, y);
    }

    private static CadSolid FillOf(in Bounds2 box, CellColor color) => Colored(
        new CadSolid
        {
            FirstPoint = new Cad3DPoint(box.MinX, box.MinY, 0),
            SecondPoint = new Cad3DPoint(box.MaxX, box.MinY, 0),
            ThirdPoint = new Cad3DPoint(box.MinX, box.MaxY, 0),
            FourthPoint = new Cad3DPoint(box.MaxX, box.MaxY, 0),
            LineWeight = WeightByBlock,
        },
        color);

    private string TextOf(CadTableCell cell)
    {
        const int integer = 1, number = 2;
        string text = cell.FieldHandle.Length > 0 ? _sources.TextOf(cell.FieldHandle) : "";
        text = text.Length > 0 ? text : cell.Text;
        text = text.Length > 0 ? text : cell.FormattedText;
        return text.Length > 0 ? text : cell.ValueType switch
        {
            integer => cell.ToValue().Integer.ToString(CultureInfo.InvariantCulture),
            number => cell.ToValue().Number.ToString("0.####", CultureInfo.InvariantCulture),
            _ => "",
        };
    }

    private CellAppearance AppearanceOf(RowKind kind)
    {
        int index = kind switch { RowKind.Data => 0, RowKind.Title => 1, _ => 2 };
        CadTableStyleCell cell = index < _style.Cells.Count ? _style.Cells[index] : new CadTableStyleCell();
        return CellAppearance.Of(cell, _stated, kind);
    }

    private RowKind KindOf(int row)
    {
        bool hasTitle = Stated(TitleHidden) is { } title ? title.Number == 0 : !_style.IsTitleSuppressed;
        bool hasHeader = Stated(HeaderHidden) is { } header ? header.Number == 0 : !_style.IsHeaderSuppressed;
        int first = hasTitle ? 1 : 0;
        return row < first ? RowKind.Title : hasHeader && row == first ? RowKind.Header : RowKind.Data;
    }

    private StatedValue? Stated(int flag) => _stated.Cells.TryGetValue(flag, out StatedValue value) ? value : null;

    private (int Rows, int Columns) SpanOf(CadTableCell cell, int row, int column) => (
        Math.Clamp((int)cell.MergedHeight, 1, _table.NumberOfRows - row),
        Math.Clamp((int)cell.MergedWidth, 1, _table.NumberOfColumns - column));

    private static double[] Positions(List<double> sizes, int count, int direction)
    {
        var positions = new double[count + 1];
        for (int i = 0; i < count; i++)
        {
            double size = i < sizes.Count && double.IsFinite(sizes[i]) ? Math.Max(0, sizes[i]) : 0;
            positions[i + 1] = positions[i] + (direction * size);
        }

        return positions;
    }

    /// <summary>The rows and columns that a cell takes.</summary>
    private readonly record struct CellArea(int Row, int Column, (int Rows, int Columns) Span)
    {
        internal int EndRow => Row + Span.Rows;

        internal int EndColumn => Column + Span.Columns;
    }
}
