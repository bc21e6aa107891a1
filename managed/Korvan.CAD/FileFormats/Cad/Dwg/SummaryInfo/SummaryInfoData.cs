using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Dwg.SummaryInfo;

/// <summary>What a drawing database states about itself. Source: Open Design Specification for .dwg files, 5.4.1,
/// chapter 13.</summary>
public class SummaryInfoData : ISummaryInfo
{
    private string _title = "";
    private string _subject = "";
    private string _author = "";
    private string _keywords = "";
    private string _comments = "";
    private string _lastSavedBy = "";
    private string _revisionNumber = "";
    private string _hyperlinkBase = "";

    /// <summary>Creates a summary that states nothing.</summary>
    public SummaryInfoData()
    {
    }

    /// <summary>Gets or sets the title; empty for none.</summary>
    public string Title
    {
        get => _title;
        set => Set(ref _title, value);
    }

    /// <summary>Gets or sets the subject; empty for none.</summary>
    public string Subject
    {
        get => _subject;
        set => Set(ref _subject, value);
    }

    /// <summary>Gets or sets the author; empty for none.</summary>
    public string Author
    {
        get => _author;
        set => Set(ref _author, value);
    }

    /// <summary>Gets or sets the keywords; empty for none.</summary>
    public string Keywords
    {
        get => _keywords;
        set => Set(ref _keywords, value);
    }

    /// <summary>Gets or sets the comments; empty for none.</summary>
    public string Comments
    {
        get => _comments;
        set => Set(ref _comments, value);
    }

    /// <summary>Gets or sets who saved the drawing; empty where it is not stated.</summary>
    public string LastSavedBy
    {
        get => _lastSavedBy;
        set => Set(ref _lastSavedBy, value);
    }

    /// <summary>Gets or sets the number of the revision; empty for none.</summary>
    public string RevisionNumber
    {
        get => _revisionNumber;
        set => Set(ref _revisionNumber, value);
    }

    /// <summary>Gets or sets the address that relative links start from; empty for none.</summary>
    public string HyperlinkBase
    {
        get => _hyperlinkBase;
        set => Set(ref _hyperlinkBase, value);
    }

    /// <summary>Gets or sets the total editing time in days.</summary>
    public double TotalEditingTime { get; set; }

    /// <summary>Gets or sets when the drawing was created: days and their fraction in the Julian calendar.</summary>
    public double CreateTime { get; set; }

    /// <summary>Gets or sets when the drawing was changed: days and their fraction in the Julian calendar.</summary>
    public double UpdateTime { get; set; }

    /// <summary>Gets the names of the custom properties, in the order of <see cref="CustomValues"/>.</summary>
    public IList<string> CustomNames { get; } = [];

    /// <summary>Gets the values of the custom properties.</summary>
    public IList<string> CustomValues { get; } = [];

    private static void Set(ref string field, string value)
    {
        Verify.NotNull(value);
        field = value;
    }
}
