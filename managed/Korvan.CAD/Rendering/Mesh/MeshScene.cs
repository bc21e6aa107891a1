using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Rendering.Mesh;

/// <summary>Collects the faces of model space: those of entities in space, and those of flat entities that have a
/// thickness. Block references are followed.</summary>
internal sealed class MeshScene
{
    private const int MostTriangles = 50_000_000;
    private const int CheckpointEvery = 4096;

    private readonly SceneTables _tables;
    private readonly RenderStyle _style;
    private readonly PenResolver _pens;
    private readonly List<MeshPart> _parts = [];
    private long _triangles;
    private int _seen;
    private int _leftOut;

    private MeshScene(SceneTables tables, RenderStyle style)
    {
        _tables = tables;
        _style = style;
        _pens = new PenResolver(tables, style, new DrawingList(), onPaper: false);
    }

    /// <summary>The faces of each entity that has any, in drawing order.</summary>
    internal static List<MeshPart> Collect(CadDrawing drawing, ExportContext? context)
    {
        RenderStyle style = context is null ? new RenderStyle() : new ExportOptions(context, DeviceKind.UserUnits, 1).Style();
        DrawingScene scene = SceneReader.Read(drawing);
        var walk = new MeshScene(scene.Tables, style);
        walk.AddSpace(scene.Model, new BlockContext { Map = Affine3.Identity });
        if (walk._leftOut > 0)
        {
            context?.Notes.Add(RenderErrorCode.EntityNotDrawn, "faces too far out for numbers of single precision", walk._leftOut);
        }

        return walk._parts;
    }

    /// <summary>One part for each layer and colour, so that a file holds few meshes instead of one for each entity.</summary>
    internal static List<MeshPart> MergeLayers(List<MeshPart> parts)
    {
        Dictionary<(string Layer, Rgba Color), MeshPart> merged = [];
        List<MeshPart> result = [];
        foreach (MeshPart part in parts)
        {
            if (!merged.TryGetValue((part.Layer, part.Color), out MeshPart? target))
            {
                target = new MeshPart("", part.Layer, part.Layer, part.Color);
                merged.Add((part.Layer, part.Color), target);
                result.Add(target);
            }

            target.Add(part);
        }

        return result;
    }

    private void AddSpace(BlockInfo block, BlockContext context)
    {
        foreach (CadEntityBase entity in block.Entities)
        {
            if (++_seen % CheckpointEvery == 0)
            {
                _style.Checkpoint?.Invoke();
            }

            if (entity.Visible == 0)
            {
                AddEntity(entity, context);
            }
        }
    }

    private void AddEntity(CadEntityBase entity, BlockContext context)
    {
        LayerInfo layer = _pens.LayerOf(entity, context);
        if (entity is CadInsertObject insert)
        {
            if (!_pens.IsFrozen(layer, context))
            {
                AddInsert(insert, layer, context);
            }

            return;
        }

        if (!_pens.IsVisible(layer, context))
        {
            return;
        }

        var part = new MeshPart(entity.ObjectHandle, entity.TypeNameText, layer.Name, _pens.PenOf(entity, layer, context).Color);
        EntityFaces.Add(entity, context.Map, part, _style.CircleSides);
        _leftOut += part.LeftOut;
        if (part.Triangles.Count == 0)
        {
            return;
        }

        _triangles += part.Triangles.Count / 3;
        if (_triangles > MostTriangles)
        {
            throw new RenderException($"The drawing has more than {MostTriangles} faces once its block references are followed.");
        }

        _parts.Add(part);
    }

    private void AddInsert(CadInsertObject insert, LayerInfo layer, BlockContext context)
    {
        if (!_tables.Blocks.TryGetValue(insert.Name, out BlockInfo? block) || block.IsExternal)
        {
            return;
        }

        BlockCells.VerifyNesting(block, context);
        Pen pen = _pens.PenOf(insert, layer, context);
        foreach ((Vec3 _, Affine3 map) in BlockCells.Of(insert, block, context))
        {
            if (map.IsFinite)
            {
                AddSpace(block, context.Inside(block, map, layer, pen));
            }
        }
    }
}
