using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Sheets of paper and the windows in them that show the model.</content>
internal sealed partial class SceneBuilder
{
    private const int SheetViewport = 1;
    private const int ViewportOff = 0x20000;
    private const int ClippedByShape = 0x10000;

    /// <summary>The list of a sheet: first what its viewports show, then what is drawn on the paper itself.</summary>
    internal static DrawingList BuildLayout(
        SceneTables tables, RenderStyle style, TextEngine engine, BlockInfo sheet, BlockInfo model,
        PlotSetup? plot)
    {
        var builder = new SceneBuilder(tables, style, engine, onPaper: true, plot);
        var context = new BlockContext { Map = Affine3.Identity };
        foreach (CadViewport viewport in sheet.Entities.OfType<CadViewport>())
        {
            builder.DrawViewport(viewport, sheet, model, context);
        }

        builder.DrawSpace(sheet, context);
        builder.FinishInfinite();
        return builder.List;
    }

    private void DrawViewport(CadViewport viewport, BlockInfo sheet, BlockInfo model, BlockContext context)
    {
        ViewportView view = ViewportView.Read(viewport);
        bool off = viewport.ViewportStatus == 0 || (viewport.StatusFlags & ViewportOff) != 0;
        bool isEmpty = !(viewport.Width > 0 && viewport.Height > 0);
        if (viewport.ViewportId == SheetViewport || off || !view.IsUsable || isEmpty)
        {
            return;
        }

        LayerInfo layer = _pens.LayerOf(viewport, context);
        Vec2 center = viewport.CenterPoint.ToVec3().Xy;
        Affine3 map = ViewTransform.Viewport(
            view.Target, view.Direction, view.Twist, view.Center, view.Height, center, viewport.Height);
        var scope = new ViewportScope(
            FrozenNames(viewport, view), _tables.Settings.PaperLinetypeScale ? 1 : viewport.Height / view.Height)
        {
            Layers = _tables.ViewportLayers.In(viewport),
        };
        AddViewportOutline(viewport, sheet, context);
        List.PushClip(_canvas.Path, evenOdd: true);
        DrawSpace(model, new BlockContext { Map = map, Viewport = scope });
        List.PopClip();
        if (_pens.IsVisible(layer, context))
        {
            AddViewportOutline(viewport, sheet, context);
            _canvas.Stroke(_pens.PenOf(viewport, layer, context));
        }
    }

    private HashSet<string> FrozenNames(CadViewport viewport, ViewportView view)
    {
        var names = new HashSet<string>(view.FrozenNames, StringComparer.OrdinalIgnoreCase);
        if (viewport.FrozenLayers.Count > 0)
        {
            var handles = new HashSet<string>(viewport.FrozenLayers, StringComparer.OrdinalIgnoreCase);
            names.UnionWith(_tables.Layers.Values.Where(l => handles.Contains(l.Handle)).Select(l => l.Name));
        }

        return names;
    }

    private void AddViewportOutline(CadViewport viewport, BlockInfo sheet, BlockContext context)
    {
        _canvas.NewPath();
        if ((viewport.StatusFlags & ClippedByShape) != 0 && viewport.ClippingBoundaryHandle.Length > 0)
        {
            CadEntityBase? shape = sheet.Entities.FirstOrDefault(
                e =>
                    string.Equals(e.ObjectHandle, viewport.ClippingBoundaryHandle, StringComparison.OrdinalIgnoreCase));
            if (shape != null && TryAddShape(shape, context) && !_canvas.Path.Bounds.IsEmpty)
            {
                return;
            }
        }

        Vec2 c = viewport.CenterPoint.ToVec3().Xy;
        _canvas.NewPath();
        AddBox(
            context.Map,
            c.X - (viewport.Width / 2),
            c.Y - (viewport.Height / 2),
            c.X + (viewport.Width / 2),
            c.Y + (viewport.Height / 2));
    }

    /// <summary>Adds the closed outline of an entity that may bound a viewport.</summary>
    private bool TryAddShape(CadEntityBase shape, BlockContext context) =>
        shape is CadLwPolyline or CadPolyline or CadEllipse or CadSpline or (CadCircle and not CadArc)
            && EntityGeometry.Emit(shape, new OutlineSink(_canvas.Path, context.Map));
}
