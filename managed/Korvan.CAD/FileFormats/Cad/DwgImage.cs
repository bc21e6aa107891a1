using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cad.Dwg.AppInfo;
using Korvan.CAD.FileFormats.Cad.Dwg.RevHistory;
using Korvan.CAD.FileFormats.Cad.Dwg.SummaryInfo;
using Korvan.CAD.FileFormats.Cad.Dwg.VbaProject;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>A drawing that was read from a drawing database, or is to become one.</summary>
public class DwgImage : CadImage
{
    /// <summary>Creates an empty drawing of release 2018 with the standard tables.</summary>
    public DwgImage()
    {
    }

    internal DwgImage(CadDrawing drawing)
        : base(drawing)
    {
    }

    /// <summary>Gets or sets what the drawing states about itself. The summary is a copy: set it to change the drawing.
    /// Times are those of the variables of the drawing, and are not set.</summary>
    public SummaryInfoData SummaryInfo
    {
        get => Drawing.Properties.ToSummary(Header);
        set
        {
            Verify.NotNull(value);
            Drawing.Properties.SetSummary(value, Header);
        }
    }

    /// <summary>Gets the program that wrote the file; <see langword="null"/> if it is not stated.</summary>
    public AppInfoData? AppInfo => Drawing.Properties.AppInfo;

    /// <summary>Gets the revision history; <see langword="null"/> if the file has none.</summary>
    public RevHistoryData? RevHistory => Drawing.Properties.RevHistory;

    /// <summary>Gets or sets the macros; <see langword="null"/> for none.</summary>
    public VbaProjectData? VbaProject
    {
        get => Drawing.Properties.VbaProject;
        set => Drawing.Properties.VbaProject = value;
    }
}
