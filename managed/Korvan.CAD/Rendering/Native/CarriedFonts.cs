using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;

namespace Korvan.CAD.Rendering.Native;

/// <summary>
/// The fonts of an installed package, a folder a family, and the configuration for systems that have none. Fonts are
/// made known only where the system lacks their family.
/// </summary>
internal static class CarriedFonts
{
    private static readonly string Folder = CarriedLibraries.Folder("fonts");

    private static readonly string Configuration = Path.Combine(Folder, "fonts.conf");

    private static readonly Lazy<bool> IsThere = new(static () => File.Exists(Configuration));

    private static readonly Lazy<bool> Provided = new(ProvideOnce);

    /// <summary>Lets fontconfig know the fonts, before its first question.</summary>
    internal static void Provide() => _ = Provided.Value;

    /// <summary>A configuration with the fonts of the system, and those of the package that it lacks.</summary>
    internal static NativeHandle NewConfig() =>
        IsThere.Value ? Complete(out _) : Fontconfig.LoadSystemConfig();

    private static bool ProvideOnce()
    {
        if (!IsThere.Value)
        {
            return false;
        }

        using NativeHandle config = Complete(out bool isChanged);
        if (isChanged)
        {
            Fontconfig.MakeCurrent(config.Pointer);
        }

        return isChanged;
    }

    private static NativeHandle Complete(out bool isChanged)
    {
        bool isOwn = !HasSystemConfiguration();
        NativeHandle config = isOwn ? Fontconfig.LoadConfig(Configuration) : Fontconfig.LoadSystemConfig();
        HashSet<string> known = [.. Fontconfig.ListFonts(config.Pointer).Select(static font => font.Family)];
        isChanged = isOwn;
        foreach (string family in Directory.EnumerateDirectories(Folder).Order(StringComparer.Ordinal))
        {
            string name = Path.GetFileName(family);
            if (!name.EndsWith(".d", StringComparison.Ordinal) && !known.Contains(name))
            {
                isChanged |= Fontconfig.AddFolder(config.Pointer, family);
            }
        }

        return config;
    }

    /// <summary>Determines whether fontconfig would find a configuration by its own rules.</summary>
    private static bool HasSystemConfiguration() =>
        !string.IsNullOrEmpty(Environment.GetEnvironmentVariable("FONTCONFIG_FILE"))
        || !string.IsNullOrEmpty(Environment.GetEnvironmentVariable("FONTCONFIG_PATH"))
        || File.Exists("/etc/fonts/fonts.conf");
}
