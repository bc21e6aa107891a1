using System.Globalization;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>What every new drawing holds: the least that programs expect of release 2018.</summary>
internal static class StandardDrawing
{
    internal static void Fill(CadDrawing drawing)
    {
        AddVariables(drawing.Header);
        drawing.ContentRelease = CadAcadVersion.AC1032;
        drawing.ModelSpaceInFile = true;
        drawing.PaperSpaceInFile = true;
        drawing.BlockEntities.Add(drawing.ModelSpace);
        drawing.BlockEntities.Add(drawing.PaperSpace);
        AddTables(drawing);
        AddObjects(drawing);
        HandleAllocator.Assign(drawing, true);
        LinkObjects(drawing);
    }

    private static void AddVariables(CadHeader header)
    {
        header.AcadVersion = CadAcadVersion.AC1032;
        header.CodePage = DwgCodePage.DefaultName;
        header.SetPoint("$INSBASE", new Cad3DPoint());
        header.ExtMin = new Cad3DPoint();
        header.ExtMax = new Cad3DPoint();
        SetFlatPoint(header, "$LIMMIN", 0, 0);
        SetFlatPoint(header, "$LIMMAX", 420, 297);
        header.Set("$ORTHOMODE", 70, "0");
        header.FillMode = 1;
        header.MirrText = 0;
        header.LtScale = 1;
        header.AttMode = 1;
        header.TextSize = 2.5;
        header.CurrentTextStyle = "Standard";
        header.CurrentLayer = "0";
        header.CurrentLineType = "ByLayer";
        header.CurrentDimStyle = "Standard";
        header.LUnits = 2;
        header.LUPrec = 4;
        header.TileMode = 1;
        header.PsLtScale = 1;
        header.Measurement = 1;
        header.InsUnits = 4;
        header.LwDisplay = 0;
        header.HandSeed = "1";
    }

    private static void SetFlatPoint(CadHeader header, string name, double x, double y)
    {
        header.Set(name, 10, x.ToString("R", CultureInfo.InvariantCulture));
        header.TagsOf(name).Add(new CadCodeValue(20, y.ToString("R", CultureInfo.InvariantCulture)));
    }

    private static void AddTables(CadDrawing drawing)
    {
        drawing.ViewPorts.Add(new CadVportTableObject { Name = "*Active", ViewHeight = 297, ViewAspectRatio = 1.41 });
        foreach ((string name, string text) in new[] { ("ByBlock", ""), ("ByLayer", ""), ("Continuous", "Solid line") })
        {
            drawing.LineTypes.Add(new CadLineTypeTableObject { Name = name, Description = text });
        }

        drawing.Layers.Add(new CadLayerTable { Name = "0", LineTypeName = "Continuous" });
        drawing.Styles.Add(new CadStyleTableObject { Name = "Standard" });
        drawing.AppIdTables.Add(new CadAppIdTableObject { Name = "ACAD" });
        drawing.DimensionStyles.Add(new CadDimensionStyleTable { Name = "Standard" });
        drawing.BlockRecords.Add(new CadBlockTableObject { Name = drawing.ModelSpace.Name });
        drawing.BlockRecords.Add(new CadBlockTableObject { Name = drawing.PaperSpace.Name });
        foreach (string table in TableRecords.Names)
        {
            drawing.TableHeaders.Add(table, new CadTableHeader { Name = table });
        }
    }

    private static void AddObjects(CadDrawing drawing)
    {
        drawing.Objects.Add(new CadDictionary());
        foreach (string _ in Dictionaries)
        {
            drawing.Objects.Add(new CadDictionary());
        }

        CadLayout model = new() { LayoutName = "Model", PlotFlags = CadPlotLayoutFlag.ModelType };
        CadLayout sheet = new() { LayoutName = "Layout1", TabOrder = 1, PaperWidth = 420, PaperHeight = 297 };
        foreach (CadLayout layout in new[] { model, sheet })
        {
            drawing.Objects.Add(layout);
            drawing.Layouts.Add(layout);
        }

        drawing.Objects.Add(CreateMlineStyle());
    }

    internal static CadMLineStyleObject CreateMlineStyle()
    {
        CadMLineStyleObject style = new() { StyleName = "STANDARD" };
        style.Elements.Add(new CadMLineStyleElement { Offset = 0.5 });
        style.Elements.Add(new CadMLineStyleElement { Offset = -0.5 });
        return style;
    }

    private static readonly string[] Dictionaries = ["ACAD_GROUP", "ACAD_LAYOUT", "ACAD_MLINESTYLE"];

    private static void LinkObjects(CadDrawing drawing)
    {
        CadDictionary root = (CadDictionary)drawing.Objects[0];
        for (int i = 0; i < Dictionaries.Length; i++)
        {
            CadDictionary named = (CadDictionary)drawing.Objects[i + 1];
            named.Owner = root.Handle;
            root.Set(Dictionaries[i], named.Handle);
        }

        Own((CadDictionary)drawing.Objects[2], "Model", drawing.Layouts[0]);
        Own((CadDictionary)drawing.Objects[2], "Layout1", drawing.Layouts[1]);
        Own((CadDictionary)drawing.Objects[3], "STANDARD", drawing.Objects[^1]);
        Show(drawing.Layouts[0], drawing.BlockRecords[0]);
        Show(drawing.Layouts[1], drawing.BlockRecords[1]);
        drawing.DimensionStyles[0].Dimtxsty = drawing.Styles[0].ObjectHandle;
    }

    private static void Own(CadDictionary dictionary, string name, CadObjectBase item)
    {
        dictionary.Set(name, item.Handle);
        item.Owner = dictionary.Handle;
    }

    private static void Show(CadLayout layout, CadBlockTableObject record)
    {
        layout.BlockTableRecordHandle = record.ObjectHandle;
        record.LayoutHandle = layout.ObjectHandle;
    }
}
