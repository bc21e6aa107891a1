namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>What a drawing states about itself.</summary>
public interface ISummaryInfo
{
    /// <summary>Gets or sets the title; empty for none.</summary>
    string Title { get; set; }

    /// <summary>Gets or sets the subject; empty for none.</summary>
    string Subject { get; set; }

    /// <summary>Gets or sets the author; empty for none.</summary>
    string Author { get; set; }

    /// <summary>Gets or sets the keywords; empty for none.</summary>
    string Keywords { get; set; }

    /// <summary>Gets or sets the comments; empty for none.</summary>
    string Comments { get; set; }

    /// <summary>Gets or sets who saved the drawing; empty where it is not stated.</summary>
    string LastSavedBy { get; set; }

    /// <summary>Gets or sets the number of the revision; empty for none.</summary>
    string RevisionNumber { get; set; }

    /// <summary>Gets or sets the address that relative links start from; empty for none.</summary>
    string HyperlinkBase { get; set; }
}
