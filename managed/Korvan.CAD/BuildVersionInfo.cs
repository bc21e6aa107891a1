using System;
using System.Reflection;
using System.Runtime.InteropServices;

namespace Korvan.CAD;

/// <summary>Product name and versions of this build.</summary>
public static class BuildVersionInfo
{
    /// <summary>Gets the name of the product.</summary>
    public static string Product => Library.GetCustomAttribute<AssemblyProductAttribute>()?.Product ?? "";

    /// <summary>Gets the assembly version, with four components.</summary>
    public static string AssemblyVersion => Library.GetName().Version?.ToString() ?? "";

    /// <summary>Gets the release version, as in 25.3.0.</summary>
    public static string ProductVersion
    {
        get
        {
            string version = Library
                .GetCustomAttribute<AssemblyInformationalVersionAttribute>()?.InformationalVersion ?? "";
            int build = version.IndexOf('+', StringComparison.Ordinal);
            return build < 0 ? version : version[..build];
        }
    }

    /// <summary>Gets name and version of the runtime.</summary>
    public static string Runtime => RuntimeInformation.FrameworkDescription;

    private static Assembly Library => typeof(BuildVersionInfo).Assembly;
}
