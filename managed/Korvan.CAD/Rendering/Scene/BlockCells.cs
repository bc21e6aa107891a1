using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The cells of a block reference, and what keeps references within bounds.</summary>
internal static class BlockCells
{
    private const int DeepestNesting = 64;
    private const long MaxCells = 1_000_000;

    /// <summary>Each cell's offset from the first, and the map from the block to where the reference stands.</summary>
    internal static IEnumerable<(Vec3 Cell, Affine3 Map)> Of(
        CadInsertObject insert, BlockInfo block, BlockContext context)
    {
        long columns = Math.Max(1, (int)insert.ColumnCount);
        long rows = Math.Max(1, (int)insert.RowCount);
        if (columns * rows > MaxCells)
        {
            throw new RenderException(
                $"A reference to the block \"{insert.Name}\" repeats it {columns} × {rows} times; "
                    + $"at most {MaxCells} cells can be drawn.");
        }

        return Cells(insert, block, context, columns, rows);
    }

    internal static void VerifyNesting(BlockInfo block, BlockContext context)
    {
        if (context.IsInside(block.Name))
        {
            throw new RenderException($"The block \"{block.Name}\" contains a reference to itself, so it has no end.");
        }

        if (context.Depth >= DeepestNesting)
        {
            throw new RenderException($"The block \"{block.Name}\" is nested more than {DeepestNesting} levels deep.");
        }
    }

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
