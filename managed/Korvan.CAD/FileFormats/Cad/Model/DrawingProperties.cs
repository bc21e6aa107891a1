using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.AppInfo;
using Korvan.CAD.FileFormats.Cad.Dwg.RevHistory;
using Korvan.CAD.FileFormats.Cad.Dwg.SummaryInfo;
using Korvan.CAD.FileFormats.Cad.Dwg.VbaProject;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>What a drawing database has beside its objects and variables.</summary>
internal sealed class DrawingProperties
{
    /// <summary>Gets or sets the program that wrote the file; <see langword="null"/> if it is not stated.</summary>
    internal AppInfoData? AppInfo { get; set; }

    internal RevHistoryData? RevHistory { get; set; }

    internal VbaProjectData? VbaProject { get; set; }

    internal List<FileDependency> FileDependencies { get; } = [];

    /// <summary>Gets the names and values of custom properties.</summary>
    internal List<KeyValuePair<string, string>> Custom { get; } = [];

    /// <summary>Returns what a drawing states about itself.</summary>
    internal SummaryInfoData ToSummary(CadHeader header)
    {
        SummaryInfoData summary = new()
        {
            TotalEditingTime = header.GetDouble("$TDINDWG"),
            CreateTime = header.GetDouble("$TDUCREATE"),
            UpdateTime = header.GetDouble("$TDUUPDATE"),
        };
        Copy(header.SummaryInfo, summary);
        foreach ((string name, string value) in Custom)
        {
            summary.CustomNames.Add(name);
            summary.CustomValues.Add(value);
        }

        return summary;
    }

    /// <summary>Sets what a drawing states about itself; its times are those of its variables.</summary>
    internal void SetSummary(SummaryInfoData summary, CadHeader header)
    {
        Copy(summary, header.SummaryInfo);
        Custom.Clear();
        for (int i = 0; i < summary.CustomNames.Count && i < summary.CustomValues.Count; i++)
        {
            Custom.Add(new(summary.CustomNames[i], summary.CustomValues[i]));
        }
    }

    private static void Copy(ISummaryInfo from, ISummaryInfo to)
    {
        to.Title = from.Title;
        to.Subject = from.Subject;
        to.Author = from.Author;
        to.Keywords = from.Keywords;
        to.Comments = from.Comments;
        to.LastSavedBy = from.LastSavedBy;
        to.RevisionNumber = from.RevisionNumber;
        to.HyperlinkBase = from.HyperlinkBase;
    }
}
