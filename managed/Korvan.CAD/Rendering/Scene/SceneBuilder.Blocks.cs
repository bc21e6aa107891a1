using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.Rendering.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Block references, their arrays and attributes, and dimensions, which are blocks of their own.</content>
internal sealed partial class SceneBuilder
{
    private const int DeepestNesting = 64;
    private const long MostCells = 1_000_000;

    private void DrawInsert(CadInsertObject insert, LayerInfo layer, BlockContext context)
    {
        if (pens.IsFrozen(layer, context) || (style.AsPlotted && !layer.IsPlotted))
        {
            return;
        }

        Pen pen = pens.PenOf(insert, layer, context);
        if (tables.Blocks.TryGetValue(insert.Name, out BlockInfo? block) && !block.IsExternal)
        {
            DrawCells(insert, block, layer, pen, context);
        }
        else
        {
            List.Skip(block == null ? "INSERT of a missing block" : "INSERT of an external drawing");
            DrawAttributes(insert, default, pen, context);
        }
    }

    /// <summary>Attributes stand where they are in the first cell, and move along with the others.</summary>
    private void DrawAttributes(CadInsertObject insert, Vec3 cell, in Pen pen, BlockContext context)
    {
        BlockContext owner = context with { ByBlock = pen, Parent = context.Parent ?? context };
        if (cell != default)
        {
            Affine3 turn = Ocs.ToWorld(V(insert.ExtrusionDirection)) * Affine3.RotationZ(Radians(insert.RotationAngle));
            owner = owner with { Map = context.Map * Affine3.Translation(turn.Vector(cell)) };
        }

        foreach (CadAttrib attribute in insert.Attributes)
        {
            Draw(attribute, owner);
        }
    }

    private void DrawCells(CadInsertObject insert, BlockInfo block, LayerInfo layer, in Pen pen, BlockContext context)
    {
        long columns = Math.Max(1, (int)insert.ColumnCount);
        long rows = Math.Max(1, (int)insert.RowCount);
        if (columns * rows > MostCells)
        {
            throw new RenderException(
                $"A reference to the block \"{insert.Name}\" repeats it {columns} × {rows} times; at most {MostCells} cells can be drawn.");
        }

        Affine3 ocs = InObject(context, insert.ExtrusionDirection);
        Affine3 placed = ocs * Affine3.Translation(V(insert.InsertionPoint)) * Affine3.RotationZ(Radians(insert.RotationAngle));
        Affine3 inner = Affine3.Scaling(NotZero(insert.ScaleX), NotZero(insert.ScaleY), NotZero(insert.ScaleZ)) * Affine3.Translation(-block.Base);
        for (long row = 0; row < rows; row++)
        {
            for (long column = 0; column < columns; column++)
            {
                var cell = new Vec3(column * insert.ColumnSpacing, row * insert.RowSpacing, 0);
                DrawBlock(block, placed * Affine3.Translation(cell) * inner, layer, pen, context);
                DrawAttributes(insert, cell, pen, context);
            }
        }
    }

    private static double NotZero(double scale) => scale == 0 ? 1 : scale;

    private void DrawBlock(BlockInfo block, in Affine3 map, LayerInfo layer, in Pen pen, BlockContext context)
    {
        if (context.IsInside(block.Name))
        {
            throw new RenderException($"The block \"{block.Name}\" contains a reference to itself, so it has no end.");
        }

        if (context.Depth >= DeepestNesting)
        {
            throw new RenderException($"The block \"{block.Name}\" is nested more than {DeepestNesting} levels deep.");
        }

        if (!map.IsFinite)
        {
            List.Skip("INSERT that is not finite");
            return;
        }

        DrawSpace(block, new BlockContext
        {
            Map = map,
            Parent = context,
            BlockName = block.Name,
            Depth = context.Depth + 1,
            Layer = layer,
            ByBlock = pen,
            Viewport = context.Viewport,
        });
    }

    private void DrawDimension(CadDimensionBase dimension, LayerInfo layer, BlockContext context)
    {
        if (pens.IsFrozen(layer, context) || (style.AsPlotted && !layer.IsPlotted))
        {
            return;
        }

        if (dimension.BlockName.Length == 0 || !tables.Blocks.TryGetValue(dimension.BlockName, out BlockInfo? block))
        {
            List.Skip(dimension.TypeNameText + " without a picture");
            return;
        }

        // The picture stands in world coordinates; a copied dimension is moved by its insertion point.
        Affine3 map = context.Map;
        if (!dimension.InsertionPoint.Is(0, 0, 0))
        {
            map = InObject(context, dimension.ExtrusionDirection) * Affine3.Translation(V(dimension.InsertionPoint));
        }

        DrawBlock(block, map, layer, pens.PenOf(dimension, layer, context), context);
    }
}
