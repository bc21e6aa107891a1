using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Block references, their arrays and attributes, and dimensions, which are blocks of their own.</content>
internal sealed partial class SceneBuilder
{
    private const string DimensionBlock = "*D";

    // The header variable XCLIPFRAME.
    private const int OnAll = 1;
    private const int OnScreens = 2;

    private void DrawInsert(CadInsertObject insert, LayerInfo layer, BlockContext context)
    {
        if (_pens.IsFrozen(layer, context) || (_style.AsPlotted && !layer.IsPlotted))
        {
            return;
        }

        Pen pen = _pens.PenOf(insert, layer, context);
        bool isKnown = _tables.Blocks.TryGetValue(insert.Name, out BlockInfo? block);
        if (isKnown && block!.IsOverlay && _tables.External.IsNested)
        {
            return;
        }

        if (isKnown && (!block!.IsExternal || _tables.External.Find(block, _tables) is not null))
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
            Affine3 turn = insert.ExtrusionDirection.ToPlane() * Affine3.RotationZ(
                Angles.Radians(insert.RotationAngle));
            owner = owner with { Map = context.Map * Affine3.Translation(turn.Vector(cell)) };
        }

        foreach (CadAttrib attribute in insert.Attributes)
        {
            Draw(attribute, owner);
        }
    }

    private void DrawCells(CadInsertObject insert, BlockInfo block, LayerInfo layer, in Pen pen, BlockContext context)
    {
        if (BlockCells.Refuse(insert, block) is { } reason)
        {
            List.Skip(reason);
            return;
        }

        Vec3[]? boundary = _tables.Clips.Find(insert);
        bool isEmpty = block.Entities.Count == 0 && insert.Attributes.Count == 0 && !block.IsExternal;
        foreach ((Vec3 cell, Affine3 map) in isEmpty ? [] : BlockCells.Of(insert, block, context))
        {
            Budget.Step();
            if (boundary is null)
            {
                DrawBlock(block, map, layer, pen, context);
            }
            else
            {
                DrawClipped(block, map, boundary, layer, pen, context);
            }

            DrawAttributes(insert, cell, pen, context);
        }
    }

    private void DrawClipped(
        BlockInfo block, in Affine3 map, Vec3[] boundary, LayerInfo layer, in Pen pen, BlockContext context)
    {
        AddRing(_canvas.NewPath(), boundary, map);
        List.PushClip(_canvas.Path, evenOdd: true);
        DrawBlock(block, map, layer, pen, context);
        List.PopClip();
        bool isFramed = _tables.Settings.ClipFrames == OnAll
            || (_tables.Settings.ClipFrames == OnScreens && !_style.AsPlotted);
        if (isFramed && _pens.IsVisible(layer, context))
        {
            AddRing(_canvas.NewPath(), boundary, map);
            _canvas.Stroke(pen);
        }
    }

    private static double NotZero(double scale) => BlockCells.NotZero(scale);

    private void DrawBlock(BlockInfo block, in Affine3 map, LayerInfo layer, in Pen pen, BlockContext context)
    {
        if (BlockCells.Refuse(block, context) is { } reason)
        {
            List.Skip(reason);
            return;
        }

        if (!map.IsFinite)
        {
            List.Skip("INSERT that is not finite");
            return;
        }

        _deepest = Math.Max(_deepest, context.Depth + 1);
        BlockContext inside = context.Inside(block, map, layer, pen);
        if (block.IsExternal)
        {
            DrawExternal(block, inside);
        }
        else if (!TryPlaceSymbol(block, map, layer, pen, context))
        {
            DrawSpace(block, inside);
        }
    }

    /// <summary>Draws the model of another drawing, with its own tables.</summary>
    private void DrawExternal(BlockInfo block, BlockContext inside)
    {
        if (_tables.External.Find(block, _tables) is not { } scene)
        {
            return;
        }

        Func<string, FontSpec> fonts = _canvas.StyleFont;
        _canvas.StyleFont = name => scene.Tables.Style(name).Font;
        var builder = new SceneBuilder(this, scene.Tables);
        builder.DrawSpace(scene.Model, inside);
        _canvas.StyleFont = fonts;
        _drawn = builder._drawn;
        _isPlaceBound |= builder._isPlaceBound;
        _infinite.AddRange(builder._infinite);
    }

    private void DrawDimension(CadDimensionBase dimension, LayerInfo layer, BlockContext context)
    {
        if (_pens.IsFrozen(layer, context) || (_style.AsPlotted && !layer.IsPlotted))
        {
            return;
        }

        Pen pen = _pens.PenOf(dimension, layer, context);
        if (dimension.BlockName.Length == 0 || !_tables.Blocks.TryGetValue(dimension.BlockName, out BlockInfo? block))
        {
            DrawFigure(dimension, layer, pen, context);
            return;
        }

        // The block is in world coordinates; a copied dimension is moved by its insertion point.
        Affine3 map = context.Map;
        if (!dimension.InsertionPoint.Is(0, 0, 0))
        {
            map *= dimension.ExtrusionDirection.ToPlane() * Affine3.Translation(dimension.InsertionPoint.ToVec3());
        }

        DrawBlock(block, map, layer, pen, context);
    }

    /// <summary>Draws a dimension by its points and its style.</summary>
    private void DrawFigure(CadDimensionBase dimension, LayerInfo layer, in Pen pen, BlockContext context)
    {
        List<CadEntityBase> entities = DimensionGraphics.Create(
            dimension, _tables.Dimensions.Of(dimension), text => TextLayouts.BoxOf(text, _tables, _canvas.Engine));
        if (entities.Count == 0)
        {
            List.Skip(dimension.TypeNameText + " without a figure");
            return;
        }

        var block = new BlockInfo(DimensionBlock + dimension.ObjectHandle, default, entities);
        DrawBlock(block, context.Map, layer, pen, context);
    }
}
