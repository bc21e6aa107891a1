using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// The properties that layers have in single viewports. Records in the extension dictionary of a layer have for each
/// viewport (code 335) a group: a colour (420), a line type (343), a line weight (91) or a transparency (440).
/// </summary>
internal sealed class ViewportLayers
{
    private const int ViewportCode = 335;

    private static readonly string[] Records =
    [
        "ADSK_XREC_LAYER_COLOR_OVR", "ADSK_XREC_LAYER_LINETYPE_OVR", "ADSK_XREC_LAYER_LINEWT_OVR",
        "ADSK_XREC_LAYER_ALPHA_OVR",
    ];

    internal static readonly ViewportLayers None = new(null);

    private readonly CadDrawing? _drawing;
    private Dictionary<ulong, Dictionary<string, LayerInfo>>? _layers;

    private ViewportLayers(CadDrawing? drawing) => _drawing = drawing;

    internal static ViewportLayers Of(CadDrawing drawing) => new(drawing);

    /// <summary>Returns the layers that are changed in a viewport, by name; null for none.</summary>
    internal IReadOnlyDictionary<string, LayerInfo>? In(CadViewport viewport)
    {
        if (_layers is null)
        {
            _layers = [];
            if (_drawing is not null)
            {
                Read(_drawing, _layers);
            }
        }

        return _layers.GetValueOrDefault(viewport.Handle);
    }

    private void Read(CadDrawing drawing, Dictionary<ulong, Dictionary<string, LayerInfo>> layers)
    {
        ExtensionDictionaries? owned = null;
        foreach (CadLayerTable layer in drawing.Layers)
        {
            if (layer.ApplicationCodesOrNull is null)
            {
                continue;
            }

            owned ??= new ExtensionDictionaries(drawing);
            CadDictionaryBase? dictionary = owned.Of(layer);
            foreach (string name in Records)
            {
                if (owned.Entry(dictionary, name) is CadXRecord record)
                {
                    Read(record, layer, layers);
                }
            }
        }
    }

    private void Read(CadXRecord record, CadLayerTable layer, Dictionary<ulong, Dictionary<string, LayerInfo>> layers)
    {
        ulong viewport = 0;
        foreach (CadCodeValue tag in record.Data)
        {
            if (tag.Attribute == ViewportCode)
            {
                viewport = HandleText.TryParse(tag.Value, out ulong handle) ? handle : 0;
            }
            else if (viewport != 0)
            {
                if (!layers.TryGetValue(viewport, out Dictionary<string, LayerInfo>? changed))
                {
                    layers.Add(viewport, changed = new(StringComparer.OrdinalIgnoreCase));
                }

                LayerInfo before = changed.TryGetValue(layer.Name, out LayerInfo? known)
                    ? known : TableReader.Layer(layer);
                changed[layer.Name] = Change(before, tag);
            }
        }
    }

    private LayerInfo Change(LayerInfo layer, CadCodeValue tag)
    {
        if (tag.Attribute == 343)
        {
            return HandleText.TryParse(tag.Value, out ulong handle)
                && _drawing!.LineTypes.Items.Find(type => type.Handle == handle) is { } found
                    ? layer with { LineType = found.Name } : layer;
        }

        if (!int.TryParse(tag.Value, NumberStyles.Integer, CultureInfo.InvariantCulture, out int value))
        {
            return layer;
        }

        return tag.Attribute switch
        {
            420 when RawColor.Decode((uint)value) is var color && color.Index != AciPalette.ByLayer
                => layer with { Color = color },
            91 => layer with { LineWeight = (short)Math.Clamp(value, short.MinValue, short.MaxValue) },
            440 => layer with { Opacity = (value & RawColor.HasOpacity) == 0 ? 1 : (value & 0xff) / 255.0 },
            _ => layer,
        };
    }
}
