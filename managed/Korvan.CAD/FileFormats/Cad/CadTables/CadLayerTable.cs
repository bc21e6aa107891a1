using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A layer.</summary>
[CadObject("LAYER", Subclass = "AcDbLayerTableRecord")]
[CadBits(
    "ExchangeRecord()", "ExchangeState()", "ExchangeColor()", "2000+ H PlotStyleHandle", "2007+ H MaterialHandle",
    "H LineTypeName", "2013+ ExchangeVisualStyle()")]
public partial class CadLayerTable : CadSymbolTableGroupCodes
{
    private const int LastColor = 255;
    private const int FrozenInNew = 2;
    private const int OffState = 2;
    private const int PlottedState = 16;
    private const int WeightShift = 5;

    /// <summary>Creates the object with its defaults.</summary>
    public CadLayerTable()
    {
    }

    /// <summary>Makes a layer of a name as it is in a file, whatever it is.</summary>
    internal static CadLayerTable Stored(string name)
    {
        CadLayerTable layer = new();
        layer.StoreName(name);
        return layer;
    }

    private protected override void VerifyName(string name) => SymbolNames.VerifyLayer(name);

    /// <summary>Gives the name and state of the layer in one line.</summary>
    /// <returns>The name and state of the layer in one line.</returns>
    public override string ToString() =>
        $"{base.ToString()}, colour "
            + $"{StoredColor}{(IsOn ? "" : ", off")}{(IsFrozen ? ", frozen" : "")}{(IsLocked ? ", locked" : "")}";

    /// <summary>Gets or sets the index of the colour, 1 to 255; negative while the layer is off. Group code
    /// 62.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is 0, or beyond 255 or -255.</exception>
    public short ColorId
    {
        get => StoredColor;
        set
        {
            if (value == 0 || Math.Abs((int)value) > LastColor)
            {
                throw Verify.OutOfRange(nameof(value), value, "It has to be 1 to 255, or the negative of that.");
            }

            StoredColor = value;
        }
    }

    /// <summary>Gets or sets the colour as 0xRRGGBB, which goes before the number; -1 for none. Group code
    /// 420.</summary>
    [CadInt(420, Optional = true, Since = 2004)]
    public int ColorValue { get; set; } = -1;

    /// <summary>Gets or sets the name of the colour in its book; empty for none. Group code 430.</summary>
    [CadString(430, Optional = true, Since = 2004)]
    public string ColorName { get; set; } = "";

    /// <summary>Gets or sets the name of the line type. Group code 6.</summary>
    [CadName(6, SymbolTable.LineType)]
    public string LineTypeName { get; set; } = "CONTINUOUS";

    /// <summary>Gets or sets whether the layer is plotted: 0 no, 1 yes. Group code 290.</summary>
    [CadShort(290, Optional = true, Since = 2000)]
    public short PlotFlag { get; set; } = 1;

    /// <summary>Gets or sets the line weight in hundredths of a millimetre; -3 the default. Group code 370.</summary>
    [CadShort(370, Optional = true, Since = 2000)]
    public short LineWeight { get; set; } = -3;

    /// <summary>Gets or sets the handle of the plot style in hexadecimal. Group code 390.</summary>
    [CadHandle(390, Optional = true, Since = 2000)]
    public string PlotStyleHandle { get; set; } = "";

    /// <summary>Gets or sets the handle of the material in hexadecimal. Group code 347.</summary>
    [CadHandle(347, Optional = true, Since = 2007)]
    public string MaterialHandle { get; set; } = "";

    /// <summary>Gets or sets the handle of the visual style in hexadecimal. Group code 348.</summary>
    [CadHandle(348, Optional = true, Since = 2013)]
    internal string VisualStyleHandle { get; set; } = "";

    /// <summary>Gets or sets the index of the colour as it is in the file, whatever it is.</summary>
    [CadColor(62)]
    internal short StoredColor { get; set; } = 7;

    /// <summary>Gets or sets whether the layer is switched on. Group code 62.</summary>
    public bool IsOn
    {
        get => StoredColor >= 0;
        set => StoredColor = (short)(value == IsOn ? StoredColor : -StoredColor);
    }

    /// <summary>Gets or sets whether the layer is frozen. Group codes 70, bit 1.</summary>
    public bool IsFrozen
    {
        get => (Flags & 1) != 0;
        set => Flags = (short)(value ? Flags | 1 : Flags & ~1);
    }

    /// <summary>Gets or sets whether the layer is locked. Group codes 70, bit 4.</summary>
    public bool IsLocked
    {
        get => (Flags & 4) != 0;
        set => Flags = (short)(value ? Flags | 4 : Flags & ~4);
    }

    /// <summary>Gets or sets whether the layer is plotted. Group code 290.</summary>
    public bool IsPlottable
    {
        get => PlotFlag != 0;
        set => PlotFlag = (short)(value ? 1 : 0);
    }

    // Text files state that there is none.
    private void ExchangeVisualStyle(BitExchange fields) => VisualStyleHandle =
        fields.Handle(HandleRole.HardPointer, fields.IsReading ? "0" : VisualStyleHandle);

    // The kinds that files have since release 2000: frozen, on, frozen in new viewports, locked, plotted, line weight.
    private void ExchangeState(BitExchange fields)
    {
        if (fields.Release < 2000)
        {
            bool frozen = fields.Bit(IsFrozen);
            bool isOn = !fields.Bit(!IsOn);
            bool frozenInNew = fields.Bit((Flags & FrozenInNew) != 0);
            TakeState(frozen, isOn, frozenInNew, fields.Bit(IsLocked));
            return;
        }

        int state = (IsFrozen ? 1 : 0) | (IsOn ? 0 : OffState) | ((Flags & FrozenInNew) << 1) | (IsLocked ? 8 : 0)
            | (IsPlottable ? PlottedState : 0) | (LineWeights.ToNumber(LineWeight) << WeightShift);
        state = fields.BitShort(state);
        if (!fields.IsReading)
        {
            return;
        }

        TakeState((state & 1) != 0, (state & OffState) == 0, (state & 4) != 0, (state & 8) != 0);
        PlotFlag = (short)((state & PlottedState) != 0 ? 1 : 0);
        LineWeight = LineWeights.ToLineWeight((state >> WeightShift) & LineWeights.Mask);
    }

    private void TakeState(bool isFrozen, bool isOn, bool isFrozenInNew, bool isLocked)
    {
        Flags = (short)((Flags & ~7) | (isFrozen ? 1 : 0) | (isFrozenInNew ? FrozenInNew : 0) | (isLocked ? 4 : 0));
        StoredColor = (short)(isOn ? Math.Abs((int)StoredColor) : -Math.Abs((int)StoredColor));
    }

    private void ExchangeColor(BitExchange fields)
    {
        bool isOn = IsOn;
        (int index, ColorValue, ColorName) = fields.Color(Math.Abs((int)StoredColor), ColorValue, ColorName);
        StoredColor = (short)(isOn ? index : -index);
    }
}
