using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Scene3D;

namespace Korvan.CAD.Rendering.Meshes;

/// <summary>
/// The faces of model space as a scene: those of entities in space, and those of flat entities that have a thickness.
/// A block reference is a node, which shares its children with others that show the block alike.
/// </summary>
internal sealed class DrawingMeshes
{
    private const int MaxTriangles = 50_000_000;
    private const int ByBlockColor = AciPalette.ByBlock;
    private const int ByBlockTransparency = 0x01000000;
    private const string InheritingLayer = "0";

    private readonly SceneTables _tables;
    private readonly RenderStyle _style;
    private readonly SortedDictionary<string, int> _refused = new(StringComparer.Ordinal);
    private readonly PenResolver _pens;
    private readonly bool _mergeLayers;
    private readonly bool _doubleSided;
    private readonly Dictionary<Rgba, Material> _materials = [];
    private readonly Dictionary<string, bool> _inheriting = new(StringComparer.OrdinalIgnoreCase);
    private readonly Dictionary<(string Block, string? Layer, Rgba Color), Content> _contents = [];
    private int _farFaces;
    private int _tangledFaces;

    private DrawingMeshes(SceneTables tables, RenderStyle style, bool mergeLayers, bool doubleSided)
    {
        _tables = tables;
        _style = style;
        _pens = new PenResolver(tables, style, new DrawingList(), onPaper: false);
        _mergeLayers = mergeLayers;
        _doubleSided = doubleSided;
    }

    /// <summary>The scene of a drawing: in drawing order, or by layer and colour in as few meshes as there can
    /// be.</summary>
    internal static Scene3D.Scene Read(
        CadDrawing drawing, ExportContext? context, MeshRequest request)
    {
        RenderStyle style = context is null
            ? new RenderStyle()
            : new ExportOptions(context, DeviceKind.UserUnits, 1).Style();
        DrawingScene read = SceneReader.Read(drawing);
        var walk = new DrawingMeshes(read.Tables, style, request.MergeLayers, request.DoubleSided);
        Content content = walk.ContentOf(read.Model, new BlockContext { Map = Affine3.Identity });
        walk.AddNotes(context?.Notes);
        var scene = new Scene3D.Scene { MillimetresPerUnit = LengthUnits.Millimetres(drawing.UnitType) };
        scene.Roots.AddRange(content.Nodes);
        return scene;
    }

    private void AddNotes(RenderNotes? notes)
    {
        foreach ((string reason, int count) in _refused)
        {
            notes?.Add(RenderErrorCode.EntityNotDrawn, reason, count);
        }

        if (_farFaces > 0)
        {
            const string what = "faces too far out for numbers of single precision";
            notes?.Add(RenderErrorCode.EntityNotDrawn, what, _farFaces);
        }

        if (_tangledFaces > 0)
        {
            const string what = "faces whose outline crosses itself too often";
            notes?.Add(RenderErrorCode.EntityNotDrawn, what, _tangledFaces);
        }
    }

    private Content ContentOf(BlockInfo block, BlockContext context)
    {
        var content = new Content();
        foreach (CadEntityBase entity in block.Entities)
        {
            Budget.Step();
            if (entity.Visible == 0)
            {
                Add(entity, content, context);
            }
        }

        content.Nodes.InsertRange(0, content.Merged.Select(merged => new Node
        {
            Name = merged.Key.Layer,
            Layer = merged.Key.Layer,
            TypeName = merged.Key.Layer,
            Mesh = merged.Value.Build(merged.Key.Layer, MaterialOf(merged.Key.Color)),
        }));
        content.Merged.Clear();
        foreach (Mesh mesh in content.Nodes.Select(node => node.Mesh).OfType<Mesh>())
        {
            content.Box = content.Box.With(mesh.Bounds());
        }

        return content;
    }

    private void Add(CadEntityBase entity, Content content, BlockContext context)
    {
        LayerInfo layer = _pens.LayerOf(entity, context);
        if (entity is CadInsertObject insert)
        {
            if (!_pens.IsFrozen(layer, context))
            {
                AddInsert(insert, layer, content, context);
            }
        }
        else if (_pens.IsVisible(layer, context))
        {
            AddFaces(entity, layer, content, context);
        }
    }

    private void AddFaces(CadEntityBase entity, LayerInfo layer, Content content, BlockContext context)
    {
        var faces = new MeshBuilder();
        EntityFaces.Add(entity, faces, _style.CircleSides);
        _farFaces += faces.FarFaces;
        _tangledFaces += faces.TangledFaces;
        if (faces.TriangleCount == 0)
        {
            return;
        }

        Count(content, faces.TriangleCount);
        Rgba color = _pens.PenOf(entity, layer, context).Color;
        if (_mergeLayers)
        {
            if (!content.Merged.TryGetValue((layer.Name, color), out MeshBuilder? merged))
            {
                content.Merged.Add((layer.Name, color), merged = new MeshBuilder());
            }

            merged.Add(faces);
            return;
        }

        content.Nodes.Add(new Node
        {
            Name = layer.Name,
            Layer = layer.Name,
            Handle = entity.ObjectHandle,
            TypeName = entity.TypeNameText,
            Mesh = faces.Build($"{entity.TypeNameText} {entity.ObjectHandle}".TrimEnd(), MaterialOf(color)),
        });
    }

    private void AddInsert(CadInsertObject insert, LayerInfo layer, Content content, BlockContext context)
    {
        if (!_tables.Blocks.TryGetValue(insert.Name, out BlockInfo? block) || block.IsExternal)
        {
            return;
        }

        if ((BlockCells.Refuse(block, context) ?? BlockCells.Refuse(insert, block)) is { } reason)
        {
            _refused[reason] = _refused.GetValueOrDefault(reason) + 1;
            return;
        }

        Pen pen = _pens.PenOf(insert, layer, context);
        bool inherits = Inherits(block);
        (string, string?, Rgba) key = inherits ? (block.Name, layer.Name, pen.Color) : (block.Name, null, default);
        if (!_contents.TryGetValue(key, out Content? shared))
        {
            shared = ContentOf(block, context.Inside(block, Affine3.Identity, layer, pen));
            _contents.Add(key, shared);
        }

        foreach ((Vec3 _, Affine3 map) in shared.Nodes.Count == 0 ? [] : BlockCells.Of(insert, block, context))
        {
            Budget.Step();
            Bounds3 box = shared.Box.Mapped(map);
            if (!MeshBuilder.IsNear(box.Min) || !MeshBuilder.IsNear(box.Max))
            {
                _farFaces++;
                continue;
            }

            Count(content, shared.Triangles);
            content.Box = content.Box.With(box);
            content.Nodes.Add(new Node
            {
                Name = block.Name,
                Layer = layer.Name,
                Handle = insert.ObjectHandle,
                TypeName = insert.TypeNameText,
                Transform = map,
                Children = shared.Nodes,
            });
        }
    }

    private static void Count(Content content, long triangles)
    {
        content.Triangles += triangles;
        if (content.Triangles > MaxTriangles)
        {
            throw new RenderException(
                $"The drawing has more than {MaxTriangles} faces once its block references are followed.");
        }
    }

    /// <summary>Whether entities of the block take layer or colour from the reference.</summary>
    private bool Inherits(BlockInfo block)
    {
        if (!_inheriting.TryGetValue(block.Name, out bool inherits))
        {
            foreach (CadEntityBase entity in block.Entities)
            {
                inherits |= entity.LayerName == InheritingLayer || entity.ColorId == ByBlockColor
                    || (entity.Transparency & ByBlockTransparency) != 0;
            }

            _inheriting.Add(block.Name, inherits);
        }

        return inherits;
    }

    private Material MaterialOf(Rgba color)
    {
        if (!_materials.TryGetValue(color, out Material? material))
        {
            material = new Material(color) { DoubleSided = _doubleSided };
            _materials.Add(color, material);
        }

        return material;
    }

    /// <summary>What a block shows in one way of showing it.</summary>
    private sealed class Content
    {
        internal List<Node> Nodes { get; } = [];

        internal Dictionary<(string Layer, Rgba Color), MeshBuilder> Merged { get; } = [];

        internal Bounds3 Box { get; set; } = Bounds3.Empty;

        internal long Triangles { get; set; }
    }
}
