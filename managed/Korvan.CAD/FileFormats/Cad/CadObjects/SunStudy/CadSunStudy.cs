using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.SunStudy;

/// <summary>How a series of views is made that show the light of the sun at several times.</summary>
[CadSequence]
[CadObject("SUNSTUDY", Subclass = "AcDbSunStudy")]
[CadBits(
    "BL Version", "T SetupName", "T Description", "BL OutputType", "if OutputType == 0: B UseSubset",
    "if OutputType == 0: T SheetSetName", "if OutputType == 0: T SheetSubsetName", "B SelectDatesFromCalendar",
    "Part[BL] Dates", "B SelectRangeOfDates", "if SelectRangeOfDates: BL StartTime",
    "if SelectRangeOfDates: BL EndTime", "if SelectRangeOfDates: BL Interval", "B[BL] Hours", "BL ShadePlotType",
    "BL ViewportsPerPage", "BL RowCount", "BL ColumnCount", "BD Spacing", "B LockViewports", "B LabelViewports",
    "H PageSetupHandle", "H ViewHandle", "H VisualStyleHandle", "H TextStyleHandle")]
public partial class CadSunStudy : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSunStudy()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; } = 1;

    /// <summary>Gets or sets the name. Group code 1.</summary>
    [CadString(1)]
    public string SetupName { get; set; } = "";

    /// <summary>Gets or sets the description. Group code 2.</summary>
    [CadString(2)]
    public string Description { get; set; } = "";

    /// <summary>Gets or sets what is made: 0 sheets of a sheet set, 1 a layout with viewports, 2 a printed page. Group
    /// code 70.</summary>
    [CadInt(70)]
    public int OutputType { get; set; }

    /// <summary>Gets or sets the name of the sheet set. Group code 3.</summary>
    [CadString(3)]
    [CadWhen("OutputType == 0")]
    public string SheetSetName { get; set; } = "";

    /// <summary>Gets or sets whether the sheets go to a subset of the sheet set. Group code 290.</summary>
    [CadBool(290)]
    [CadWhen("OutputType == 0")]
    public bool UseSubset { get; set; }

    /// <summary>Gets or sets the name of the subset. Group code 4.</summary>
    [CadString(4)]
    [CadWhen("OutputType == 0")]
    public string SheetSubsetName { get; set; } = "";

    /// <summary>Gets or sets whether single dates are stated. Group code 291.</summary>
    [CadBool(291)]
    public bool SelectDatesFromCalendar { get; set; }

    /// <summary>Gets the dates. The list is live. Group code 91.</summary>
    [CadRepeated(90, Count = 91)]
    public IList<CadSunStudyDate> Dates { get; } = new CheckedList<CadSunStudyDate>("dates");

    /// <summary>Gets or sets whether a range of dates is stated. Group code 292.</summary>
    [CadBool(292)]
    public bool SelectRangeOfDates { get; set; }

    /// <summary>Gets or sets the start of the time of day, in seconds. Group code 93.</summary>
    [CadInt(93)]
    [CadWhen("SelectRangeOfDates")]
    public int StartTime { get; set; }

    /// <summary>Gets or sets the end of the time of day, in seconds. Group code 94.</summary>
    [CadInt(94)]
    [CadWhen("SelectRangeOfDates")]
    public int EndTime { get; set; }

    /// <summary>Gets or sets the interval, in seconds. Group code 95.</summary>
    [CadInt(95)]
    [CadWhen("SelectRangeOfDates")]
    public int Interval { get; set; }

    private const int HourCode = 290;

    /// <summary>Gets whether each hour of the day has a view: 0 no, 1 yes. The list is live. Group codes 73,
    /// 290.</summary>
    public List<int> Hours { get; } = [];

    /// <summary>Gets or sets the handle of the page setup in hexadecimal. Group code 340.</summary>
    public string PageSetupHandle { get; set; } = "0";

    /// <summary>Gets or sets the handle of the view in hexadecimal. Group code 341.</summary>
    public string ViewHandle { get; set; } = "0";

    /// <summary>Gets or sets the handle of the visual style in hexadecimal. Group code 342.</summary>
    public string VisualStyleHandle { get; set; } = "0";

    /// <summary>Gets or sets how viewports are plotted. Group code 74.</summary>
    public short ShadePlotType { get; set; }

    /// <summary>Gets or sets the number of viewports on a page. Group code 75.</summary>
    public short ViewportsPerPage { get; set; }

    /// <summary>Gets or sets the number of rows of viewports. Group code 76.</summary>
    public short RowCount { get; set; }

    /// <summary>Gets or sets the number of columns of viewports. Group code 77.</summary>
    public short ColumnCount { get; set; }

    /// <summary>Gets or sets the gap between viewports, in drawing units. Group code 40.</summary>
    public double Spacing { get; set; }

    /// <summary>Gets or sets whether the viewports are locked. Group code 293.</summary>
    public bool LockViewports { get; set; }

    /// <summary>Gets or sets whether the viewports have labels. Group code 294.</summary>
    public bool LabelViewports { get; set; }

    /// <summary>Gets or sets the handle of the text style of the labels in hexadecimal. Group code 343.</summary>
    public string TextStyleHandle { get; set; } = "0";

    partial void OnExchange(ObjectExchange fields)
    {
        int hours = fields.Count(73, Hours.Count);
        for (int i = 0; i < hours; i++)
        {
            bool isSet = fields.Bool(HourCode, i < Hours.Count && Hours[i] != 0);
            if (fields.IsReading)
            {
                Hours.Add(isSet ? 1 : 0);
            }
        }

        PageSetupHandle = fields.Handle(340, HandleRole.HardPointer, PageSetupHandle);
        ViewHandle = fields.Handle(341, HandleRole.HardPointer, ViewHandle);
        VisualStyleHandle = fields.Handle(342, HandleRole.HardPointer, VisualStyleHandle);
        ShadePlotType = fields.Int16(74, ShadePlotType);
        ViewportsPerPage = fields.Int16(75, ViewportsPerPage);
        RowCount = fields.Int16(76, RowCount);
        ColumnCount = fields.Int16(77, ColumnCount);
        Spacing = fields.Double(40, Spacing);
        LockViewports = fields.Bool(293, LockViewports);
        LabelViewports = fields.Bool(294, LabelViewports);
        TextStyleHandle = fields.Handle(343, HandleRole.HardPointer, TextStyleHandle);
    }
}
