using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The cells of a block reference, and what keeps references within bounds.</summary>
internal static class BlockCells
{
    internal const int DeepestNesting = 64;
    private const long MaxCells = 1_000_000;

    /// <summary>Returns the offset of each cell from the first, and the map from the block to the place of the
    /// reference.</summary>
    internal static IEnumerable<(Vec3 Cell, Affine3 Map)> Of(
        CadInsertObject insert, BlockInfo block, BlockContext context) =>
        Cells(insert, block, context, Columns(insert), Rows(insert));

    /// <summary>Returns why a reference cannot be drawn; null if it can. The rest of the drawing does not depend on
    /// it.</summary>
    internal static string? Refuse(BlockInfo block, BlockContext context) =>
        context.IsInside(block.Name) ? $"reference to the block \"{block.Name}\" in itself"
        : context.Depth >= DeepestNesting
            ? $"reference to the block \"{block.Name}\", nested more than {DeepestNesting} levels deep"
        : null;

    /// <summary>Returns why the cells of a reference cannot be drawn; null if they can.</summary>
    internal static string? Refuse(CadInsertObject insert, BlockInfo block) =>
        (block.Entities.Count > 0 || block.IsExternal) && Columns(insert) * Rows(insert) > MaxCells
            ? $"reference that repeats the block \"{block.Name}\" more than {MaxCells} times"
            : null;

    private static long Columns(CadInsertObject insert) => Math.Max(1, (int)insert.ColumnCount);

    private static long Rows(CadInsertObject insert) => Math.Max(1, (int)insert.RowCount);

    internal static double NotZero(double scale) => scale == 0 ? 1 : scale;

    private static IEnumerable<(Vec3 Cell, Affine3 Map)> Cells(
        CadInsertObject insert, BlockInfo block, BlockContext context, long columns, long rows)
    {
        Affine3 placed = context.Map * insert.ExtrusionDirection.ToPlane()
            * Affine3.Translation(insert.InsertionPoint.ToVec3())
            * Affine3.RotationZ(Angles.Radians(insert.RotationAngle));
        Affine3 inner = Affine3.Scaling(NotZero(insert.ScaleX), NotZero(insert.ScaleY), NotZero(insert.ScaleZ))
            * Affine3.Translation(-block.Base);
        for (long row = 0; row < rows; row++)
        {
            for (long column = 0; column < columns; column++)
            {
                var cell = new Vec3(column * insert.ColumnSpacing, row * insert.RowSpacing, 0);
                yield return (cell, placed * Affine3.Translation(cell) * inner);
            }
        }
    }
}
