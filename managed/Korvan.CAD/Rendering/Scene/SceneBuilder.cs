using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad.Model.Proxy;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// Walks the entities of a space and puts them on a canvas. Entities that cannot be drawn are counted in the list;
/// what would never end (blocks in themselves, arrays of millions) is an error that names its place.
/// </summary>
internal sealed partial class SceneBuilder : IGeometrySink
{
    private const int MaxEntities = 20_000_000;
    private const int MinExpected = 256;
    private const string LinkApplication = "PE_URL";
    private const int XdataString = 1000;

    private readonly SceneTables _tables;
    private readonly RenderStyle _style;
    private readonly Canvas _canvas;
    private readonly PenResolver _pens;
    private readonly List<InfiniteLine> _infinite = [];
    private int _drawn;
    private Current _current;

    private SceneBuilder(SceneTables tables, RenderStyle style, TextEngine engine, bool onPaper, PlotSetup? plot)
    {
        _tables = tables;
        _style = style;
        var list = new DrawingList
        {
            ColorMap = style.ColorMap,
            MaxStored = style.MaxStored,
            Drain = style.Drain,
            Expected = Math.Max(style.Expected, MinExpected),
        };
        _canvas = new Canvas(list, engine)
        {
            HasHiddenText = style.HasHiddenText,
            StyleFont = name => tables.Style(name).Font,
        };
        _pens = new PenResolver(tables, style, _canvas.List, onPaper)
        {
            Styles = plot?.Table,
            PlotUnit = plot?.UnitsPerMillimetre ?? 1,
        };
        if (plot is { Table: null })
        {
            list.Skip("plot style table " + plot.Name + DrawingList.MissingFile);
        }

        Array.ForEach(
            tables.Settings.Unreadable, name => list.Skip($"header variable {name} without a readable value"));
    }

    /// <summary>A builder for another drawing on the same canvas.</summary>
    private SceneBuilder(SceneBuilder outer, SceneTables tables)
    {
        (_tables, _canvas, _drawn) = (tables, outer._canvas, outer._drawn);
        _style = outer._style with { HasSymbols = false };
        _pens = outer._pens.For(tables);
    }

    private DrawingList List => _canvas.List;

    /// <summary>The list of the model, in the plane of the view.</summary>
    internal static DrawingList BuildModel(
        SceneTables tables, RenderStyle style, TextEngine engine, BlockInfo model, PlotSetup? plot)
    {
        var builder = new SceneBuilder(tables, style, engine, onPaper: false, plot);
        builder.DrawSpace(model, new BlockContext { Map = style.ModelView });
        builder.FinishInfinite();
        return builder.List;
    }

    /// <summary>The map from a plane of the drawn entity to the page.</summary>
    private Affine3 MapOf(in Affine3 plane) => plane.IsIdentity ? _current.Context.Map : _current.Context.Map * plane;

    private void DrawSpace(BlockInfo block, BlockContext context)
    {
        IReadOnlyList<CadEntityBase> entities = DrawOrder.Sorted(block);
        for (int i = 0; i < entities.Count; i++)
        {
            Draw(entities[i], context);
        }
    }

    private void Draw(CadEntityBase entity, BlockContext context)
    {
        if (LinkOf(entity) is { } target)
        {
            Bounds2 outer = List.OpenLink();
            DrawEntity(entity, context);
            List.CloseLink(target, outer);
            return;
        }

        DrawEntity(entity, context);
    }

    /// <summary>The address that an entity leads to, which is the first string of its extended data for it.</summary>
    private static string? LinkOf(CadEntityBase entity)
    {
        string? target = entity.XdataOrNull?.Find(LinkApplication)?.Data
            .Find(static tag => tag.Attribute == XdataString)?.Value;
        return string.IsNullOrEmpty(target) ? null : target;
    }

    private void DrawEntity(CadEntityBase entity, BlockContext context)
    {
        Count();
        LayerInfo layer = _pens.LayerOf(entity, context);
        if (entity.Visible != 0)
        {
            return;
        }

        if (entity is CadInsertObject insert and not CadTableEntity)
        {
            DrawInsert(insert, layer, context);
        }
        else if (entity is CadDimensionBase dimension)
        {
            DrawDimension(dimension, layer, context);
        }
        else if (_pens.IsVisible(layer, context))
        {
            Pen pen = _pens.PenOf(entity, layer, context);
            DrawVisible(entity, pen, layer, context);
        }
    }

    private void DrawVisible(CadEntityBase entity, in Pen pen, LayerInfo layer, BlockContext context)
    {
        // A block draws entities in the middle of another: the outer one goes on afterwards.
        Current outer = _current;
        _current = new Current(pen, layer, context, entity);
        if (!EntityGeometry.Emit(entity, this))
        {
            List.Skip(entity.TypeNameText);
        }

        _current = outer;
    }

    void IGeometrySink.Traits(in ShapeTraits traits)
    {
        (_, LayerInfo layer, BlockContext context, CadEntityBase entity) = _current;
        Pen own = _pens.PenOf(entity, layer, context);
        if (traits.Layer >= 0 && traits.Layer < _tables.LayerNames.Count)
        {
            layer = _tables.Layer(_tables.LayerNames[traits.Layer]);
            own.Layer = List.Layer(layer.Name);
        }

        if (traits.TrueColor >= 0 || traits.Color >= 0)
        {
            var color = new DrawingColor(traits.Color >= 0 ? traits.Color : AciPalette.ByLayer, traits.TrueColor);
            own = _pens.Colored(own, color, own.Color.A, layer, context);
        }

        if (traits.LineType >= 0 && traits.LineType < _tables.LineTypeNames.Count)
        {
            own.Pattern = _pens.PatternOf(_tables.LineTypeNames[traits.LineType], layer, context);
        }

        own.LineWeight = traits.LineWeight is short weight && own.Plot?.LineWeight is null
            ? _pens.WeightOf(weight, layer, context) : own.LineWeight;
        own.PatternScale *= traits.LineTypeScale is > 0 and < double.MaxValue ? traits.LineTypeScale.Value : 1;
        _current = _current with { Pen = own };
    }

    private void Count(int entities = 1)
    {
        Budget.Step(entities);
        _drawn += entities;
        if (_drawn > MaxEntities)
        {
            throw new RenderException(
                $"The drawing shows more than {MaxEntities} entities once its block references are drawn; "
                    + "it is too large to be rendered.");
        }
    }

    /// <summary>What is drawn: with which pen, on which layer, and inside of which references.</summary>
    private readonly record struct Current(Pen Pen, LayerInfo Layer, BlockContext Context, CadEntityBase Entity);
}
