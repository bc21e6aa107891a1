using System;

namespace Korvan.CAD.CadExceptions.ImageFormats;

/// <summary>A file of the Initial Graphics Exchange Specification (IGES) cannot be loaded.</summary>
public class IgesImageException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public IgesImageException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public IgesImageException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
