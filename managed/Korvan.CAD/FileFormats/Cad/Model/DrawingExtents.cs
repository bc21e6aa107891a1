using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;
using Korvan.CAD.FileFormats.Cad.Model.Tables;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The space that the entities of a drawing take.</summary>
internal sealed class DrawingExtents : IDisposable
{
    // Blocks within blocks multiply; beyond this many entities their boxes have to do.
    private const int MaxRotated = 1 << 18;

    private readonly CadDrawing _drawing;
    private readonly TextBoxes _texts;
    private readonly Dictionary<string, Extents> _blocks = new(StringComparer.OrdinalIgnoreCase);
    private readonly HashSet<string> _open = new(StringComparer.OrdinalIgnoreCase);
    private DimensionStyles? _dimensions;
    private TableSources? _tables;
    private bool _measuresCells = true;
    private int _rotated;

    private DrawingExtents(CadDrawing drawing, Func<ITextMeasurer?>? createMeasurer)
    {
        _drawing = drawing;
        _texts = new TextBoxes(createMeasurer);
    }

    private DimensionStyles Dimensions => _dimensions ??= new DimensionStyles(_drawing);

    private TableSources Tables => _tables ??= new TableSources(_drawing);

    /// <summary>The corners of model space.</summary>
    /// <param name="drawing">The drawing.</param>
    /// <param name="createMeasurer">Makes what measures texts; without it their boxes are approximate.</param>
    /// <returns>The lowest and the highest corner.</returns>
    internal static (Cad3DPoint Min, Cad3DPoint Max) OfModel(CadDrawing drawing, Func<ITextMeasurer?>? createMeasurer)
    {
        Extents extents = new();
        using var measure = new DrawingExtents(drawing, createMeasurer);
        measure.AddAll(drawing.Entities.ItemsOf(), extents, isBlock: false);
        measure._texts.Finish(extents);
        return (extents.Min, extents.Max);
    }

    /// <summary>The boxes of entities one by one; empty for those that take no space.</summary>
    /// <param name="drawing">The drawing.</param>
    /// <param name="entities">Entities of the drawing.</param>
    /// <param name="createMeasurer">Makes what measures texts; without it their boxes are approximate.</param>
    internal static IEnumerable<Extents> OfEach(
        CadDrawing drawing, IEnumerable<CadEntityBase> entities, Func<ITextMeasurer?>? createMeasurer)
    {
        using var measure = new DrawingExtents(drawing, createMeasurer);
        foreach (CadEntityBase entity in entities)
        {
            Extents extents = new();
            EntityGeometry.Emit(entity, new Sink(measure, extents, isBlock: false));
            measure._texts.Finish(extents);
            yield return extents;
        }
    }

    /// <summary>The box of a block where it is placed once; cells of tables in it that have no block do not count, as
    /// they may hold the block itself.</summary>
    internal static Extents OfBlock(CadDrawing drawing, CadBlockEntity block)
    {
        Extents extents = new();
        using var measure = new DrawingExtents(drawing, null) { _measuresCells = false };
        measure.AddBlock(block.Name, Affine3.Identity, extents);
        measure._texts.Finish(extents);
        return extents;
    }

    internal static int ToWhole(double from, double to)
    {
        return (int)Math.Clamp(Math.Ceiling(to - from), 0, int.MaxValue);
    }

    public void Dispose() => _texts.Dispose();

    private void AddAll(List<CadEntityBase> entities, Extents extents, bool isBlock)
    {
        var sink = new Sink(this, extents, isBlock);
        foreach (CadEntityBase entity in entities)
        {
            EntityGeometry.Emit(entity, sink);
        }
    }

    private void AddInsert(CadInsertObject insert, Extents extents)
    {
        if (_drawing.BlockEntities.Find(insert.Name) is not { } block)
        {
            return;
        }

        (Cad3DPoint place, Cad3DPoint origin) = (insert.InsertionPoint, block.BasePoint);
        Affine3 placed = extents.Map * insert.ExtrusionDirection.ToPlane()
            * Affine3.Translation(place.ToVec3()) * Affine3.RotationZ(Angles.Radians(insert.RotationAngle));
        Affine3 inner = Affine3.Scaling(insert.ScaleX, insert.ScaleY, insert.ScaleZ)
            * Affine3.Translation(-origin.ToVec3());
        foreach ((double column, double row) in Corners(insert))
        {
            AddBlock(insert.Name, placed * Affine3.Translation(new Vec3(column, row, 0)) * inner, extents);
        }
    }

    // A rotated box is larger than what it holds: then the entities themselves are rotated.
    private void AddBlock(string name, Affine3 map, Extents extents)
    {
        if (_drawing.BlockEntities.Find(name) is not { } block)
        {
            return;
        }

        bool boxed = IsAxisAligned(map) || _rotated > MaxRotated || !_open.Add(name);
        if (boxed)
        {
            extents.Add(BlockExtents(name), map);
            return;
        }

        Affine3 outer = extents.Map;
        extents.Map = map;
        _rotated += block.Entities.Count;
        AddAll(block.Entities.ItemsOf(), extents, isBlock: true);
        extents.Map = outer;
        _open.Remove(name);
    }

    private static bool IsAxisAligned(Affine3 map) =>
        IsAlongAxis(map.AxisX) && IsAlongAxis(map.AxisY) && IsAlongAxis(map.AxisZ);

    private static bool IsAlongAxis(Vec3 axis)
    {
        double longest = Math.Max(Math.Abs(axis.X), Math.Max(Math.Abs(axis.Y), Math.Abs(axis.Z)));
        return Math.Abs(axis.X) + Math.Abs(axis.Y) + Math.Abs(axis.Z) - longest <= 1e-12 * longest;
    }

    private static IEnumerable<(double Column, double Row)> Corners(CadInsertObject insert)
    {
        double width = Math.Max(0, insert.ColumnCount - 1) * insert.ColumnSpacing;
        double height = Math.Max(0, insert.RowCount - 1) * insert.RowSpacing;
        yield return (0, 0);
        if (width != 0 || height != 0)
        {
            yield return (width, 0);
            yield return (0, height);
            yield return (width, height);
        }
    }

    private Extents BlockExtents(string name)
    {
        if (_blocks.TryGetValue(name, out Extents? known))
        {
            return known;
        }

        // Empty until the block is measured: one that inserts itself adds nothing more.
        _blocks.Add(name, new Extents());
        Extents extents = new();
        if (_drawing.BlockEntities.Find(name) is { } block)
        {
            AddAll(block.Entities.ItemsOf(), extents, isBlock: true);
            _texts.Finish(extents);
        }

        _blocks[name] = extents;
        return extents;
    }

    private sealed class Sink(DrawingExtents owner, Extents extents, bool isBlock) : EntityExtents(
        extents, owner._texts)
    {
        // Attributes of a reference stand in for the definitions of its block.
        protected override bool IsShown(in TextLine text) =>
            !text.IsHidden && !(isBlock && text.Role == TextRole.AttributeDefinition && !text.IsConstant);

        protected override void AddReference(CadInsertObject insert)
        {
            owner.AddInsert(insert, Extents);
            insert.Attributes.ForEach(attribute => EntityGeometry.Emit(attribute, this));
        }

        protected override void AddTable(CadTableEntity table, in Affine3 map)
        {
            if (owner._drawing.BlockEntities.Find(table.Name) is { } block)
            {
                Affine3 placed = map * Affine3.Translation(-block.BasePoint.ToVec3());
                owner.AddBlock(table.Name, Extents.Map * placed, Extents);
            }
            else if (owner._measuresCells)
            {
                Affine3 outer = Extents.Map;
                Extents.Map = outer * map;
                List<CadEntityBase> cells = TableGraphics.Create(table, owner.Tables);
                owner._rotated += owner._open.Count > 0 ? cells.Count : 0;
                cells.ForEach(entity => EntityGeometry.Emit(entity, this));
                Extents.Map = outer;
            }
        }

        protected override void AddDimension(CadDimensionBase dimension)
        {
            if (dimension.BlockName.Length > 0 && owner._drawing.BlockEntities.Find(dimension.BlockName) is not null)
            {
                owner.AddBlock(dimension.BlockName, Extents.Map, Extents);
                return;
            }

            foreach (CadEntityBase entity in DimensionGraphics.Create(
                dimension, owner.Dimensions.Of(dimension), owner._texts.BoxOf))
            {
                EntityGeometry.Emit(entity, this);
            }
        }
    }
}
