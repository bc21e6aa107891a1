using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Rendering.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>The space that the entities of a drawing take.</summary>
internal sealed class DrawingExtents(CadImage image)
{
    private readonly Dictionary<string, Extents> _blocks = new(StringComparer.OrdinalIgnoreCase);

    internal static (Cad3DPoint Min, Cad3DPoint Max) OfModel(CadImage image)
    {
        Extents extents = new();
        new DrawingExtents(image).AddAll(image.Entities, extents);
        return (extents.Min, extents.Max);
    }

    internal static int ToWhole(double from, double to)
    {
        return (int)Math.Clamp(Math.Ceiling(to - from), 0, int.MaxValue);
    }

    private void AddAll(List<CadEntityBase> entities, Extents extents)
    {
        foreach (CadEntityBase entity in entities)
        {
            switch (entity)
            {
                case CadInsertObject insert:
                    AddInsert(insert, extents);
                    break;
                case CadDimensionBase { BlockName.Length: > 0 } dimension:
                    extents.Add(BlockExtents(dimension.BlockName), static point => point);
                    break;
                default:
                    EntityExtents.Add(entity, extents);
                    break;
            }
        }
    }

    private void AddInsert(CadInsertObject insert, Extents extents)
    {
        Extents block = BlockExtents(insert.Name);
        CadBlockEntity? definition = image.BlockEntities.Find(insert.Name);
        if (definition is null || block.IsEmpty)
        {
            return;
        }

        Affine3 system = EntityExtents.SystemOf(insert.ExtrusionDirection);
        (double sin, double cos) = Math.SinCos(insert.RotationAngle * Math.PI / 180);
        Cad3DPoint origin = definition.BasePoint;
        foreach ((double column, double row) in Corners(insert))
        {
            extents.Add(block, point =>
            {
                double u = ((point.X - origin.X) * insert.ScaleX) + column;
                double v = ((point.Y - origin.Y) * insert.ScaleY) + row;
                double w = (point.Z - origin.Z) * insert.ScaleZ;
                return system.Point(new Vec3(
                    insert.InsertionPoint.X + (u * cos) - (v * sin),
                    insert.InsertionPoint.Y + (u * sin) + (v * cos),
                    insert.InsertionPoint.Z + w));
            });
        }
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

        // Nothing stands for the block until it is measured: one that inserts itself adds nothing more.
        _blocks.Add(name, new Extents());
        Extents extents = new();
        if (image.BlockEntities.Find(name) is { } block)
        {
            AddAll(block.Entities, extents);
        }

        _blocks[name] = extents;
        return extents;
    }
}
