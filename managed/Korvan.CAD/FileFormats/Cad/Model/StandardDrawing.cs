using System.Globalization;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>What every new drawing holds: the least that programs expect of release 2018.</summary>
internal static class StandardDrawing
{
    internal static void Fill(CadImage image)
    {
        AddVariables(image.Header);
        image.ModelSpaceInFile = true;
        image.PaperSpaceInFile = true;
        image.BlockEntities.Add(image.ModelSpace);
        image.BlockEntities.Add(image.PaperSpace);
        AddTables(image);
        AddObjects(image);
        HandleAllocator.Assign(image, true);
        LinkObjects(image);
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

    private static void AddTables(CadImage image)
    {
        image.ViewPorts.Add(new CadVportTableObject { Name = "*Active", ViewHeight = 297, ViewAspectRatio = 1.41 });
        foreach ((string name, string text) in new[] { ("ByBlock", ""), ("ByLayer", ""), ("Continuous", "Solid line") })
        {
            image.LineTypes.Add(new CadLineTypeTableObject { Name = name, Description = text });
        }

        image.Layers.Add(new CadLayerTable { Name = "0", LineTypeName = "Continuous" });
        image.Styles.Add(new CadStyleTableObject { Name = "Standard" });
        image.AppIdTables.Add(new CadAppIdTableObject { Name = "ACAD" });
        image.DimensionStyles.Add(new CadDimensionStyleTable { Name = "Standard" });
        image.BlockRecords.Add(new CadBlockTableObject { Name = image.ModelSpace.Name });
        image.BlockRecords.Add(new CadBlockTableObject { Name = image.PaperSpace.Name });
        foreach (string table in TableRecords.Names)
        {
            image.TableHeads.Add(table, new CadTableHead { Name = table });
        }
    }

    private static void AddObjects(CadImage image)
    {
        image.Objects.Add(new CadDictionary());
        foreach (string _ in Dictionaries)
        {
            image.Objects.Add(new CadDictionary());
        }

        CadLayout model = new() { LayoutName = "Model", PlotFlags = CadPlotLayoutFlag.ModelType };
        CadLayout sheet = new() { LayoutName = "Layout1", TabOrder = 1, PaperWidth = 420, PaperHeight = 297 };
        foreach (CadLayout layout in new[] { model, sheet })
        {
            image.Objects.Add(layout);
            image.Layouts.Add(layout);
        }

        CadMLineStyleObject lines = new() { StyleName = "STANDARD" };
        lines.Elements.Add(new CadMLineStyleElement { Offset = 0.5 });
        lines.Elements.Add(new CadMLineStyleElement { Offset = -0.5 });
        image.Objects.Add(lines);
    }

    private static readonly string[] Dictionaries = ["ACAD_GROUP", "ACAD_LAYOUT", "ACAD_MLINESTYLE"];

    private static void LinkObjects(CadImage image)
    {
        CadDictionary root = (CadDictionary)image.Objects[0];
        for (int i = 0; i < Dictionaries.Length; i++)
        {
            CadDictionary named = (CadDictionary)image.Objects[i + 1];
            named.Owner = root.Handle;
            root.Set(Dictionaries[i], named.Handle);
        }

        Own((CadDictionary)image.Objects[2], "Model", image.Layouts[0]);
        Own((CadDictionary)image.Objects[2], "Layout1", image.Layouts[1]);
        Own((CadDictionary)image.Objects[3], "STANDARD", image.Objects[^1]);
        Show(image.Layouts[0], image.BlockRecords[0]);
        Show(image.Layouts[1], image.BlockRecords[1]);
        image.DimensionStyles[0].Dimtxsty = image.Styles[0].ObjectHandle;
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
