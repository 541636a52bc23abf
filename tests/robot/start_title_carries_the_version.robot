# The title of the start screen, 92 blanks, and the version.
start
screen FrmPres
expect-title-like "Vermanto ECR Programming Utility                                                                                            V. *.*.*"
