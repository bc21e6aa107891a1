using System;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>Attributes of application structures.</summary>
public static class ApplicationStructureDescriptorElements
{
    internal static readonly ElementEntry[] Table =
    [
        new((int)ApplicationStructureDescriptorElement.ApplicationStructureAttribute, "APSATTR", static () => new ApplicationStructureAttribute()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <returns>A new command for an element, without parameters yet.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(ApplicationStructureDescriptorElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <returns>The word that stands for an element in clear text.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(ApplicationStructureDescriptorElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(ApplicationStructureDescriptorElement element) =>
        ElementTables.Get(ClassCode.ApplicationStructureDescriptorElement, element);
}
