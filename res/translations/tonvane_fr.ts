<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Ce programme est un logiciel libre distribué sous la licence publique générale GNU, version 2 ou ultérieure. Il est fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Copie du fichier en cours</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation> : impossible, car le fichier n&apos;existe pas.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation> : impossible, car le chemin du fichier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, car trop de fichiers sont ouverts.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation> : impossible, car l&apos;accès au fichier est refusé.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation> : impossible, car le nom du fichier, du dossier ou du disque est incorrect.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation> : impossible, car le nom du fichier ou son extension est trop long.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation> : impossible, car le système ne peut pas accéder au fichier.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Désolé : </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>le fichier </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> impossible. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Désolé, ce type de fichier n&apos;est pas pris en charge.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Désolé : le fichier </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Désolé, le test du niveau de crête n&apos;est pas proposé pour les fichiers MP3 ; utilisez le test du niveau moyen.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Désolé : le fichier </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> contient des erreurs. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Désolé : le test du fichier </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> a échoué.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Test arrêté</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>Le test est arrêté, car le fichier n&apos;a pas été ouvert pour lui.
Voulez-vous choisir un fichier ?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Mesure du niveau sonore en cours</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Désolé, le test est arrêté, car la copie temporaire n&apos;a pas pu être créée pour le fichier </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>Le test est arrêté, car le fichier contient des erreurs.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russe</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italien</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Néerlandais</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugais</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norvégien</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Danois</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turc</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polonais</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Croate</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinois</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coréen</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Tchèque</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Slovène</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Redémarrez le programme pour changer la langue de l&apos;interface.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Désolé, une copie de ce programme est déjà lancée. Cette nouvelle copie ne sera donc pas démarrée.</translation>
    </message>
    <message>
        <source>&amp;Windows XP</source>
        <translation>&amp;Windows XP</translation>
    </message>
    <message>
        <source>&amp;Office XP</source>
        <translation>&amp;Office XP</translation>
    </message>
    <message>
        <source>O&amp;ffice 2000</source>
        <translation>O&amp;ffice 2000</translation>
    </message>
    <message>
        <source>Off&amp;ice 2003</source>
        <translation>Off&amp;ice 2003</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translation>&amp;Gris</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>À propos de Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Mesure l&apos;intensité sonore des fichiers audio : le niveau de crête et le niveau moyen par rapport à la référence de 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>Courriel :</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Site web :</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Bibliothèques utilisées :</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Veuillez patienter, recherche des fichiers en cours</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Traitement : </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Liste des fichiers</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Ajuster toutes les colonnes</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Ajuster la colonne</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Traitement par lots...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Test du fichier :</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Test par lots...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Fin estimée :</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>La liste à traiter contient :</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Fermer la fenêtre à la fin du traitement par lots</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Testés :</translation>
    </message>
    <message>
        <source>Mp3, Wav (MPEG 1.0 Layer III)</source>
        <translation>Mp3, Wav (MPEG 1.0 Layer III)</translation>
    </message>
    <message>
        <source>Mp4, M4a, M4b, M4p, M4r (AAC, ALAC)</source>
        <translation>Mp4, M4a, M4b, M4p, M4r (AAC, ALAC)</translation>
    </message>
    <message>
        <source>Wav (Microsoft Wave RIFF)</source>
        <translation>Wav (Microsoft Wave RIFF)</translation>
    </message>
    <message>
        <source>FLAC</source>
        <translation>FLAC</translation>
    </message>
    <message>
        <source>Ogg Vorbis</source>
        <translation>Ogg Vorbis</translation>
    </message>
    <message>
        <source>APE (Monkey’s Audio)</source>
        <translation>APE (Monkey’s Audio)</translation>
    </message>
    <message>
        <source>Batch Processor - Tonvane 1.0</source>
        <translation>Traitement par lots - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Quel type de traitement par lots voulez-vous ouvrir ?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Type de traitement par lots</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Agrandir la fenêtre du traitement par lots</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Dossier :</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Faites glisser des fichiers ou des dossiers ici (ou choisissez Ajouter des fichiers, un dossier ou des dossiers). Le programme ne retient que les fichiers pris en charge.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> La liste contient : </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Total vérifié : </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>&amp;Ajouter des fichiers...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>Ajouter un &amp;dossier...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>Ajouter des dossi&amp;ers...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Ajouter des &amp;listes de lecture...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Desce&amp;ndre</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>&amp;Cocher tout</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>Déc&amp;ocher tout</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Retirer &amp;tout</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>A&amp;ctions</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Lecture / &amp;pause</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêt</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Volume</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Plus fort</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Moins fort</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>P&amp;récédent</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>Toujours au &amp;premier plan</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>&amp;Utiliser la base de données</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>&amp;Vider la base de données</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;Base de données...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Utiliser tous les &amp;cœurs du processeur</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Aide de Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d&apos;outils</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Ajouter des fichiers (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Ajouter un dossier (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Ajouter des dossiers (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Ajouter des listes de lecture (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Descendre (Alt+Bas)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Monter (Alt+Haut)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Cocher tout (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Décocher tout (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Retirer (Suppr)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Retirer tout (Ctrl+Suppr)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Aide (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Fermer (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Tester le niveau de crête</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Tester le niveau moyen</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Tester</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Test par lots</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Veuillez patienter, préparation de la liste des fichiers</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Ajouter des fichiers </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Ajouter des listes de lecture</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Choisissez le dossier</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Ajouter un dossier - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Choisissez les dossiers</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Ajouter des dossiers - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Désolé, vous n&apos;avez sélectionné aucun fichier. Sélectionnez un fichier.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Base de données - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Taille maximale de la base de données :</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Taille actuelle de la base de données : </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bits par échantillon</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Canaux</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Fréquence</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Format audio</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Taille</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>Traitement par &amp;lots...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Afficher</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>&amp;Lecteur</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>Aléatoir&amp;e</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>R&amp;épéter</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>Répéter &amp;tout</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Bip à la fin</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Aide de Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Ouvrir le &amp;site de Tonvane</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>À &amp;propos de Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Ouvrir (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Lots</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Traitement par lots (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Quitter (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Nom du fichier :</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Propriétés</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Écrêtage</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Lecture / pause (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Arrêt (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Aléatoire (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Répéter (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Muet (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Précédent (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Suivant (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>50</source>
        <translation>50</translation>
    </message>
    <message>
        <source>100</source>
        <translation>100</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Temps :</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Durée totale :</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Test du niveau sonore</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Ne plus afficher</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Langue de l&apos;interface</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Thèmes</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Désolé, l&apos;aide du programme n&apos;est pas installée.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Désolé, la page d&apos;aide %1 ne peut pas être ouverte.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Erreur à l&apos;initialisation de la bibliothèque de décodage faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>aucune piste audio AAC correcte n&apos;a été trouvée dans le fichier MP4.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>La lecture du fichier MP4 a échoué.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> ne peut pas être créé.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> a un format de données sonores que le programme ne prend pas en charge.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> Le fichier a plus de 2 canaux.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> est vide et ne contient aucune donnée sonore.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>L&apos;ouverture du fichier est arrêtée, car il contient des erreurs.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> créer une projection du fichier en mémoire est impossible</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Le test va donc être arrêté.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Il a été créé par une version de Monkey&apos;s Audio antérieure à 3.99, que le programme ne décode pas.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. Ce n&apos;est pas un fichier Monkey&apos;s Audio, ou son en-tête est endommagé.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Désolé, une erreur s&apos;est produite à l&apos;ouverture du flux de décodage.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Le fichier </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> s&apos;arrête au milieu de ses données sonores.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> est endommagé : ses données sonores échouent à la vérification.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Format audio      APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Désolé, le test est arrêté, car le fichier </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> est vide et ne contient aucune donnée sonore. Veuillez choisir un autre fichier.
Voulez-vous choisir un fichier ?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Une erreur dans le flux a fait perdre la synchronisation au décodeur.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>Le décodeur a rencontré un en-tête de trame endommagé.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Les données de la trame ne correspondent pas au CRC de fin.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>Le décodeur a rencontré des champs réservés utilisés dans le flux.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Format audio      FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Fichiers Wave (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Traitement par lots Wav - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> ne contient aucun fichier Wav.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>Fichiers MP3 (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Traitement par lots Mp3 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> ne contient aucun fichier Mp3.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>Fichiers FLAC (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>Traitement par lots FLAC - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> ne contient aucun fichier FLAC.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Fichiers Ogg (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Traitement par lots Ogg - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> ne contient aucun fichier Ogg.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>Fichiers APE (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>Traitement par lots APE - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> ne contient aucun fichier APE.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>Fichiers AAC/ALAC (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Traitement par lots Mp4 (AAC, ALAC) - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> ne contient aucun fichier Mp4.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>Liste de lecture M3U (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Débit             </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbit/s</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Canaux            </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Fréquence         </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Format audio      MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Format audio      MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Format audio      MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> n&apos;a pas pu être effectué.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Débit             </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Mode              Stéréo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Mode              Stéréo conjointe</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Mode              Double canal</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Mode              Mono</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Méthode de codage</translation>
    </message>
    <message>
        <source>   </source>
        <translation>   </translation>
    </message>
    <message>
        <source>VBR</source>
        <translation>VBR</translation>
    </message>
    <message>
        <source>CBR</source>
        <translation>CBR</translation>
    </message>
    <message>
        <source>carry out data-file-mapping to the process&apos;s address space is</source>
        <translation>projeter le fichier dans l&apos;espace d&apos;adressage du processus est</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Taille            </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>créer une copie du descripteur pour copier le fichier est</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> ne contient aucune donnée sonore. Le test est donc impossible.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Format audio      Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Désolé, le nom du fichier est incorrect. Veuillez choisir un autre fichier.
Voulez-vous choisir un fichier ?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Désolé, le nom de fichier avec l&apos;extension &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> n&apos;est pas pris en charge par le programme. Veuillez choisir un autre fichier.
Voulez-vous choisir un fichier ?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> octets</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> Ko</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> Go</translation>
    </message>
    <message>
        <source>Open      </source>
        <translation>Ouvrir      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> a un format de données sonores que le programme ne prend pas en charge. Le test est donc impossible. Veuillez choisir un autre fichier.
Voulez-vous choisir un fichier ?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bits/échantillon  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Canaux            </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Fréquence         </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>Un flux de conversion des données n&apos;a pas pu être ouvert</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Format audio      PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Le test est donc impossible. Veuillez choisir un autre fichier.
Voulez-vous choisir un fichier ?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, est vide et ne contient aucune donnée sonore.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> ne contient pas de données sonores propres aux fichiers Wav.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bits/échantillon  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bits/échantillon  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bits/échantillon  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bits/échantillon  32</translation>
    </message>
    <message>
        <source>100% = 41 dB</source>
        <translation>100% = 41 dB</translation>
    </message>
    <message>
        <source>100% = 137 dB</source>
        <translation>100% = 137 dB</translation>
    </message>
    <message>
        <source>100% = 185 dB</source>
        <translation>100% = 185 dB</translation>
    </message>
    <message>
        <source>Mono Channel</source>
        <translation>Canal mono</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>Canal gauche</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Canal droit</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>créer l&apos;objet de projection du fichier est impossible</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Canaux            1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Canaux            2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Format audio      PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Désolé : pour le fichier </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> déplacer la position courante dans le fichier est impossible. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>L&apos;enregistrement va donc être arrêté.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Désolé, une erreur d&apos;écriture s&apos;est produite dans le fichier de sortie : </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Désolé, le programme ne peut pas continuer avec le fichier : </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Niveau maximal</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Niveau sonore</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(niveau de crête)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(niveau moyen)</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>100% = </source>
        <translation>100% = </translation>
    </message>
    <message>
        <source>Max Level </source>
        <translation>Niveau max. </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> ouvrir une copie temporaire du fichier </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Désolé, une erreur s&apos;est produite à l&apos;ouverture du fichier &quot;TestLog.csv&quot;.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>La base de données a bien été vidée</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Aucun périphérique audio n&apos;est disponible.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Précédent&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Suivant&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Répéter&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Position&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Lecture&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Arrêt&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Muet&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Aléatoire&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Aucune erreur.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Aucun canal libre n&apos;a été trouvé pour jouer le son. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Le canal indiqué a été réutilisé pour jouer un autre son. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Erreur de chargement du fichier. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Le déplacement dans le fichier a échoué. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Le fichier se termine avant qu&apos;un son ait pu être lu. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Fichier introuvable. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Format de fichier ou audio non pris en charge. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>Le système audio n&apos;est pas prêt pour cet appel. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Un identifiant d&apos;objet non valide a été utilisé. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>Un paramètre non valide a été passé à cette fonction. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>Une position non valide a été passée à cette fonction. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Mémoire ou ressources insuffisantes. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Erreur à l&apos;initialisation du périphérique de sortie audio. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>Le système audio n&apos;est pas encore initialisé. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Erreur inconnue.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> est introuvable.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Désolé : le dossier </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> ne peut pas être lu : </translation>
    </message>
    <message>
        <source>№</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Gain</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Format audio</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Bits</translation>
    </message>
    <message>
        <source> TB</source>
        <translation> To</translation>
    </message>
    <message>
        <source> not tested</source>
        <translation> non testé</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> testé</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Total :</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Taille : </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Fréquence : </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Bits : </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Mode :</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Canaux : </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Durée : </translation>
    </message>
    <message>
        <source> file</source>
        <translation> fichier</translation>
    </message>
    <message>
        <source> files</source>
        <translation> fichiers</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Durée totale : </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Désolé, vous n&apos;avez sélectionné aucun fichier. Le test par lots est donc arrêté.</translation>
    </message>
    <message>
        <source> hr </source>
        <translation> h </translation>
    </message>
    <message>
        <source> min </source>
        <translation> min </translation>
    </message>
    <message>
        <source> sec</source>
        <translation> s</translation>
    </message>
    <message>
        <source> from </source>
        <translation> sur </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> terminé</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Veuillez patienter, test par lots en cours</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Test suspendu</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Test annulé</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Désolé : le dossier ouvert </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Désolé, le test du niveau sonore a été arrêté, car le fichier </translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> Stéréo</translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation> Stéréo conjointe</translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation> Double canal</translation>
    </message>
    <message>
        <source> Mono</source>
        <translation> Mono</translation>
    </message>
    <message>
        <source>PCM IEEE Float</source>
        <translation>PCM IEEE Float</translation>
    </message>
    <message>
        <source>PCM (Pulse-Code Modulation)</source>
        <translation>PCM (modulation par impulsions et codage)</translation>
    </message>
    <message>
        <source>MPEG-4 AAC</source>
        <translation>MPEG-4 AAC</translation>
    </message>
    <message>
        <source>MPEG-2 AAC</source>
        <translation>MPEG-2 AAC</translation>
    </message>
    <message>
        <source>MPEG4 ALAC</source>
        <translation>MPEG4 ALAC</translation>
    </message>
    <message>
        <source>FLAC (Free Lossless Audio Codec)</source>
        <translation>FLAC (Free Lossless Audio Codec)</translation>
    </message>
    <message>
        <source>ABR</source>
        <translation>ABR</translation>
    </message>
    <message>
        <source>APE Monkey&apos;s Audio</source>
        <translation>APE Monkey&apos;s Audio</translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Gauche : </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation> ; Droite : </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Canal mono : </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Désolé, la page d&apos;accueil %1 ne peut pas être ouverte.</translation>
    </message>
</context>
</TS>
