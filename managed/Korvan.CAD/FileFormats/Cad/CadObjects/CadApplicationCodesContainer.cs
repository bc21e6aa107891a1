using System;
using System.Collections.Generic;
using Korvan.CAD.Collections;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The groups that programs attached to an object.</summary>
public class CadApplicationCodesContainer
{
    /// <summary>Creates a container without content.</summary>
    public CadApplicationCodesContainer()
    {
    }

    /// <summary>Gets the groups. The list is live.</summary>
    public IList<CadApplicationCodes> ApplicationCodes { get; } = new CheckedList<CadApplicationCodes>(
        "application_codes");

    /// <summary>Finds a group.</summary>
    /// <param name="applicationName">Its name, as in ACAD_XDICTIONARY.</param>
    /// <returns>The group, or nothing.</returns>
    public CadApplicationCodes? Find(string applicationName)
    {
        foreach (CadApplicationCodes codes in ApplicationCodes)
        {
            if (string.Equals(codes.ApplicationName, applicationName, StringComparison.OrdinalIgnoreCase))
            {
                return codes;
            }
        }

        return null;
    }
}
