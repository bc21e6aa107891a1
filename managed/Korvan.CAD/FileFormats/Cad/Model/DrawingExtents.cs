using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The space that the entities of a drawing take.</summary>
internal sealed class DrawingExtents(CadDrawing drawing)
{
    // Blocks within blocks multiply; beyond this many entities their boxes have to do.
    private const int MostTurned = 1 << 18;

    private readonly Dictionary<string, Extents> _blocks = new(StringComparer.OrdinalIgnoreCase);
    private readonly HashSet<string> _open = new(StringComparer.OrdinalIgnoreCase);
    private int _turned;

    internal static (Cad3DPoint Min, Cad3DPoint Max) OfModel(CadDrawing drawing)
    {
        Extents extents = new();
        new DrawingExtents(drawing).AddAll(drawing.Entities.ItemsOf(), extents);
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
                    AddBlock(dimension.BlockName, extents.Map, extents);
                    break;
                default:
                    EntityExtents.Add(entity, extents);
                    break;
            }
        }
    }

    private void AddInsert(CadInsertObject insert, Extents extents)
    {
        if (drawing.BlockEntities.Find(insert.Name) is not { } block)
        {
            return;
        }

        (Cad3DPoint place, Cad3DPoint origin) = (insert.InsertionPoint, block.BasePoint);
        Affine3 placed = extents.Map * EntityExtents.SystemOf(insert.ExtrusionDirection)
            * Affine3.Translation(new Vec3(place.X, place.Y, place.Z))
            * Affine3.RotationZ(insert.RotationAngle * Math.PI / 180);
        Affine3 inner = Affine3.Scaling(insert.ScaleX, insert.ScaleY, insert.ScaleZ)
            * Affine3.Translation(new Vec3(-origin.X, -origin.Y, -origin.Z));
        foreach ((double column, double row) in Corners(insert))
        {
            AddBlock(insert.Name, placed * Affine3.Translation(new Vec3(column, row, 0)) * inner, extents);
        }
    }

    // A box that is turned askew is larger than what it holds: then the entities themselves are turned.
    private void AddBlock(string name, Affine3 map, Extents extents)
    {
        if (drawing.BlockEntities.Find(name) is not { } block)
        {
            return;
        }

        bool boxed = IsUpright(map) || _turned > MostTurned || !_open.Add(name);
        if (boxed)
        {
            extents.Add(BlockExtents(name), map);
            return;
        }

        Affine3 outer = extents.Map;
        extents.Map = map;
        _turned += block.Entities.Count;
        AddAll(block.Entities.ItemsOf(), extents);
        extents.Map = outer;
        _open.Remove(name);
    }

    private static bool IsUpright(Affine3 map) => IsAlongAxis(map.AxisX) && IsAlongAxis(map.AxisY) && IsAlongAxis(map.AxisZ);

    private static bool IsAlongAxis(Vec3 way)
    {
        double longest = Math.Max(Math.Abs(way.X), Math.Max(Math.Abs(way.Y), Math.Abs(way.Z)));
        return Math.Abs(way.X) + Math.Abs(way.Y) + Math.Abs(way.Z) - longest <= 1e-12 * longest;
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
        if (drawing.BlockEntities.Find(name) is { } block)
        {
            AddAll(block.Entities.ItemsOf(), extents);
        }

        _blocks[name] = extents;
        return extents;
    }
}
